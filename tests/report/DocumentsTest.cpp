#include "report/Documents.h"

#include "tests/report/ReportTest.h"

namespace ostrelum {
namespace {

std::string golden(const std::string& name)
{
    std::ifstream file(OSTRELUM_TESTS_DIR "/report/golden/" + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

bool holds_text(const std::string& document, const std::string& text)
{
    return document.find(text) != std::string::npos;
}

using Documents = ReportTest;

TEST_F(Documents, AreTheRecordedOnesToTheByte)
{
    SkinR = 0;
    SkinG = 15;
    SkinB = 255;
    clock.milliseconds = 0xFFFFFF00U;
    WatchingToolkit slow([&] { clock.milliseconds += 1029; });
    make_report();
    for (const auto& [format, document] : made_documents())
        EXPECT_TRUE(ansi_file(*document) == golden(std::string("report.") + format))
            << format << "\n"
            << *document;
    EXPECT_EQ(F2.LStatus.Caption, "Report made at 12.3 second/s") << "the clock may wrap";
}

TEST_F(Documents, TheTitleTellsTheTimeByLanguage)
{
    const auto title_holds = [&](const char* language, TimeOfDay now, const char* text) {
        Idioma = language;
        clock.now = now;
        make_report();
        return holds_text(F2.Tb4.substr(0, 100), text);
    };
    EXPECT_TRUE(title_holds("English", {14, 5, 9}, " at 02:05 PM on"));
    EXPECT_TRUE(title_holds("Dutch", {0, 59, 9}, " at 12:59 AM on"));
    EXPECT_TRUE(title_holds("Dutch", {12, 0, 0}, " at 12:00 PM on"));
    EXPECT_TRUE(title_holds("Spanish", {14, 5, 9}, " at 14:05:09 hs. on"));
}

TEST_F(Documents, SecondsAreCutToFourCharacters)
{
    regional.sign = ",";
    const std::pair<std::uint32_t, std::string> cases[] = {
        {47, "0,04"}, {5000, "5"}, {12345, "12,3"}, {123456, "123,"}, {1234567, "1234"}};
    for (const auto& [milliseconds, text] : cases) {
        const auto end = milliseconds;
        clock.milliseconds = 0;
        WatchingToolkit late([&] { clock.milliseconds = end; });
        make_report();
        EXPECT_EQ(F2.LStatus.Caption, "Report made at " + text + " second/s");
        EXPECT_TRUE(holds_text(F2.Tb1, " in " + text + " sec."));
    }
}

TEST_F(Documents, MarksAndMarkersInAValueAreReplacedLikeTheDocumentsOwn)
{
    change("Win32_BaseBoard", "Product", "B(2)^c^e<{[");
    make_report();
    EXPECT_EQ(row("Others hardware", "Internal name:"), "B0 · <{[");
    EXPECT_TRUE(holds_text(F2.Tb2, "B0\t\t<ul>\r\n\t\t\t<li><label class='Line'></label></li><{["));
}

TEST_F(Documents, BbCodeWritesEachChannelWithTwoDigits)
{
    const ReportLook look{.red = 15, .green = 16, .blue = 171};
    EXPECT_TRUE(finished_document(bbcode_format, look, "", "^a").starts_with("[color=#0f10ab]"));
}

} // namespace
} // namespace ostrelum
