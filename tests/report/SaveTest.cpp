#include "report/AnsiText.h"
#include "tests/report/ReportTest.h"

namespace ostrelum {
namespace {

using namespace std::string_literals;

class SavingAReport : public ReportTest {
protected:
    SavingAReport()
    {
        make_report();
        F2.BSave.Enabled = F2.BClose.Enabled = true;
        F2.Tb1 = "rtf";
        F2.Tb2 = "html";
        F2.Tb3 = "bbcode";
        F2.Tb4 = " · text\r\n";
    }
    void save_as(const std::string& path, int filter)
    {
        save_dialog.answer = ChosenFile{path, filter};
        click("BSave");
    }
    using Files = std::map<std::string, std::string>;
};

TEST_F(SavingAReport, AsksWithFourFiltersInTheDesktopFolder)
{
    click("BSave");
    const OpenFileName& request = save_dialog.requests.at(0);
    EXPECT_EQ(request.title, "Save report as...");
    EXPECT_EQ(request.filter, "Rich text format (*.rtf)\0*.rtf\0Web page (*.htm)\0*.htm\0"
                              "BBCode (*.txt)\0*.txt\0Plain text (*.txt)\0*.txt\0"s);
    EXPECT_EQ(request.filter_index, 1);
    EXPECT_EQ(request.file, "Dervalin Ostrelum report");
    EXPECT_EQ(request.initial_dir, "/home/ana/Desktop");
    EXPECT_EQ(request.target("/a/report.rtf", 1), "/a/report.rtf.rtf");
    EXPECT_EQ(request.target("/a/report", 3), "/a/report.txt") << "the file really written";
    EXPECT_TRUE(file_writer.files.empty()) << "cancelled";

    store.folders.clear();
    click("BSave");
    EXPECT_EQ(save_dialog.requests.at(1).initial_dir, "");
}

TEST_F(SavingAReport, TheFilterChoosesTheDocumentAndTheExtension)
{
    save_as("/a/r", 1);
    save_as("/a/r", 2);
    save_as("/a/b", 3);
    save_as("  /a/r.txt ", 4);
    EXPECT_EQ(file_writer.files, (Files{{"/a/r.rtf", "rtf\r\n"},
                                        {"/a/r.htm", "html\r\n"},
                                        {"/a/b.txt", "bbcode\r\n"},
                                        {"/a/r.txt.txt", " \xB7 text\r\n\r\n"}}));
    EXPECT_EQ(F2.Tb4, " · text\r\n") << "saving changes no document";
    EXPECT_TRUE(F2.BSave.Enabled);
}

TEST_F(SavingAReport, AFailureOrAnUnknownFilterWritesNothing)
{
    save_as("/a/r", 0);
    save_as("/a/r", 5);
    save_as("", 0);
    file_writer.files["/a/r.rtf"] = "earlier";
    file_writer.fails = true;
    save_as("/a/r", 1);
    EXPECT_EQ(file_writer.files, (Files{{"/a/r.rtf", "earlier"}}));
    EXPECT_TRUE(F2.BSave.Enabled && F2.BClose.Enabled);
}

TEST(AnsiText, HasOneByteForEachCharacter)
{
    const std::pair<const char*, const char*> cases[] = {
        {"plain ~\r\n\t", "plain ~\r\n\t"},
        {" · ñÿ\u00A0", " \xB7 \xF1\xFF\xA0"},
        {"€‚ƒ„…†‡ˆ‰Š‹ŒŽ", "\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E"},
        {"‘’“”•–—˜™š›œžŸ", "\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F"},
        {"\u0081\u008D\u008F\u0090\u009D", "\x81\x8D\x8F\x90\x9D"},
        {"\u0080\u0085 Łα漢😀", "?? ????"},
        {"cut short \xE6\xBC", "cut short ??"},
    };
    for (const auto& [utf8, bytes] : cases)
        EXPECT_EQ(ansi_text(utf8), bytes) << utf8;
}

} // namespace
} // namespace ostrelum
