#include "report/Documents.h"

#include "tests/report/ReportTest.h"

#include <gmock/gmock.h>

namespace ostrelum {
namespace {

std::string golden(const std::string& name)
{
    std::ifstream file(OSTRELUM_TESTS_DIR "/report/golden/" + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

using Documents = ReportTest;
using ::testing::HasSubstr;

/// The recorded machine has marks, markers and signs of the formats among its values.
TEST_F(Documents, AreTheRecordedOnesToTheByte)
{
    SkinR = 15;
    SkinG = 16;
    SkinB = 171;
    clock.milliseconds = 0xFFFFFF00U;
    WatchingToolkit slow([&] { clock.milliseconds += 1029; });
    make_report();
    for (const auto& [format, document] : made_documents())
        EXPECT_TRUE(ansi_file(*document) == golden(std::string("report.") + format))
            << format << "\n"
            << *document;
    EXPECT_EQ(F2.LStatus.Caption, "Report made at 12.3 second/s") << "since a start 50 days ago";
}

TEST_F(Documents, TheTitleTellsTheTimeByLanguage)
{
    const struct {
        const char* language;
        TimeOfDay now;
        const char* text;
    } cases[] = {{"English", {14, 5, 9}, " at 02:05 PM on"},
                 {"Dutch", {0, 59, 9}, " at 12:59 AM on"},
                 {"Dutch", {12, 0, 0}, " at 12:00 PM on"},
                 {"Spanish", {14, 5, 9}, " at 14:05:09 hs. on"}};
    for (const auto& c : cases) {
        Idioma = c.language;
        clock.now = c.now;
        make_report();
        EXPECT_THAT(F2.Tb4, HasSubstr(c.text));
    }
}

} // namespace
} // namespace ostrelum
