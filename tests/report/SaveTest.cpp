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

} // namespace
} // namespace ostrelum
