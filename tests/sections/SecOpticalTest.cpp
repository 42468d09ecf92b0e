#include "tests/Stage.h"
#include "tests/sections/PageRows.h"
#include "tests/sections/Volumes.h"

#include <gmock/gmock.h>

namespace ostrelum {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;

constexpr const char* Volumes = "Select DriveType, Size, VolumeName, Name, Size, FileSystem, "
                                "VolumeSerialNumber from Win32_LogicalDisk where DriveType = 5";
constexpr const char* Drives = "Select Size, Name, MediaType from Win32_CDROMDrive";

Instance disc(const Value& size, const Value& name = " Disc ", const char* letter = "D:")
{
    return volume(size, {}, name, letter, "UDF");
}

Instance drive(const Value& size, const char* name)
{
    return Instance({{"MediaType", "DVD Writer"}, {"Name", name}, {"Size", size}});
}

class SecOpticalPage : public Stage {
protected:
    SecOpticalPage() { start_program(); }

    void open(const ResultSet& volumes, const ResultSet& drives = {})
    {
        leave_another_page();
        script.results = {{Volumes, volumes}, {Drives, drives}};
        press("LMenu", 12);
    }
    void open_anew(const ResultSet& volumes, const ResultSet& drives = {})
    {
        press("LMenu", 8);
        open(volumes, drives);
    }
};

TEST_F(SecOpticalPage, ListsLoadedDrivesAndCountsTheEmptyOnes)
{
    F1.LNoDrive.Visible = F1.Line2.Visible = true;
    open({disc(kilobytes(4700000)), disc({}, {}, "E:"), disc(kilobytes(700000), "Two", "F:")},
         {drive("4812800000", " Burner "), drive({}, "Empty"), drive(716800000, "Reader")});
    EXPECT_EQ(F1.Titulo.Caption, "CDs/DVDs");
    EXPECT_THAT(shown(1, 12),
                ElementsAre("Name: Disc - Two", "Drive letter: (D:) - (F:)",
                            "Size: (4.48 GB) - (683.5 MB)", "Internal name: Burner - Reader",
                            "Drive type: DVD Writer - DVD Writer", "File system: UDF - UDF",
                            "Serial number: 1A2B - 1A2B", "", "", "", "", ""));
    EXPECT_EQ(F1.MediaCount, 2);
    EXPECT_EQ(F1.EmptyDrives, 1);
    EXPECT_EQ(F1.Laviso.Caption, "2 drives are loaded.\r\n1 drive is empty.");
    EXPECT_EQ(F1.Laviso.ForeColor, RGB(0, 145, 0));
    EXPECT_TRUE(F1.Laviso.Visible && F1.Iaviso.Visible && F1.Line1.Visible);
    EXPECT_EQ(F1.Line1.Y1, F1.LT(8).Top + 4);
    EXPECT_EQ(F1.Line1.Y2, F1.Line1.Y1);
    EXPECT_EQ(rows_with_title_tooltips(), 0b1111111000110);
    EXPECT_FALSE(F1.LNoDrive.Visible || F1.Line2.Visible || F1.LT(1).Font.Italic);
}

TEST_F(SecOpticalPage, WithoutADiscTheNoticeStandsAloneOnThePage)
{
    F1.Line1.Visible = true;
    open({disc({}), disc("0"), disc(-1)}, {drive({}, "Burner")});
    EXPECT_THAT(shown(1, 12), Each(""));
    EXPECT_EQ(rows_with_title_tooltips(), 0b1111000000000);
    EXPECT_EQ(F1.MediaCount, 0);
    EXPECT_EQ(F1.EmptyDrives, 3);
    EXPECT_EQ(script.asked.back(), Volumes) << "nothing else is asked";
    EXPECT_TRUE(F1.LNoDrive.Visible && F1.Laviso.Visible && F1.Iaviso.Visible);
    EXPECT_EQ(F1.LNoDrive.Caption, "None CD/DVD has been inserted");
    EXPECT_EQ(F1.Laviso.Caption, "Couldn't find any CD/DVD in the drives.\r\n"
                                 "Please, insert at least a CD/DVD.");
    EXPECT_EQ(F1.Laviso.ForeColor, RGB(75, 75, 75));
    EXPECT_FALSE(F1.Line1.Visible);
}

TEST_F(SecOpticalPage, TheNoticeStandsByLanguageAndFont)
{
    const struct {
        const char* language;
        std::uint8_t fonts;
        int top;
    } cases[] = {
        {"English", 32, 210}, {"Spanish", 32, 205}, {"Dutch", 32, 200},
        {"English", 0, 220},  {"Spanish", 0, 220},  {"Dutch", 0, 220},
    };
    for (const auto& c : cases) {
        Idioma = c.language;
        FontsOk = c.fonts;
        open({});
        EXPECT_EQ(F1.LNoDrive.Top, c.top) << c.language << " " << int{c.fonts};
        EXPECT_EQ(F1.LNoDrive.Height, 180);
    }
}

TEST_F(SecOpticalPage, CountsInWords)
{
    const Instance loaded = disc("1024"), empty = disc({});
    open_anew({loaded, empty});
    EXPECT_EQ(F1.Laviso.Caption, "1 drive is loaded.\r\n1 drive is empty.");
    open_anew({loaded, loaded});
    EXPECT_EQ(F1.Laviso.Caption, "2 drives are loaded.\r\nNone CD/DVD drive is empty.");
    open_anew({empty, loaded, empty});
    EXPECT_EQ(F1.Laviso.Caption, "1 drive is loaded.\r\n2 drives are empties.");
}

TEST_F(SecOpticalPage, AClickOnTheOpenPageDrawsTheKeptValuesWithoutAQuery)
{
    open({disc("1024"), disc({})}, {drive("1024", "Burner")});
    script.asked.clear();
    Datos.fill("used elsewhere");
    open({disc("1024", "Other")}, {drive("1024", "Other")});
    EXPECT_TRUE(script.asked.empty());
    EXPECT_EQ(shown(1), "Name: Disc");
    EXPECT_EQ(shown(4), "Internal name: Burner");
    EXPECT_EQ(F1.L(8).ToolTipText, "");
    EXPECT_EQ(F1.Laviso.Caption, "1 drive is loaded.\r\n1 drive is empty.");
    EXPECT_EQ(F1.Labelmi.Caption, "Done");

    open_anew({disc("1024", "Other")}, {drive("1024", "Other")});
    EXPECT_EQ(shown(1), "Name: Other") << "from another page all is asked anew";
}

TEST_F(SecOpticalPage, AMissingNameMakesTheNextClickAskAnew)
{
    open({disc("1024", {})}, {drive("1024", "Burner")});
    EXPECT_EQ(shown(1), "Name: kept");
    EXPECT_EQ(F1.L(1).ToolTipText, "kept");
    F1.Line2.Visible = true;
    open({disc("1024", "Now")}, {drive("1024", "Burner")});
    EXPECT_EQ(shown(1), "Name: Now");
    EXPECT_FALSE(F1.Line2.Visible);
}

TEST_F(SecOpticalPage, SizesRoundKilobytesDownAndEndAtEightDigits)
{
    const struct {
        const char *bytes, *shown;
    } cases[] = {
        {"1023", "(0 KB)"},       {"1023999", "(999 KB)"},
        {"1024000", "(0.9 MB)"},  {"51199999999", "(47.68 GB)"},
        {"102400000000", "kept"}, {"2199023255552", "(0 KB)"},
    };
    for (const auto& c : cases) {
        open_anew({disc(c.bytes)});
        EXPECT_EQ(F1.L(3).Caption, c.shown) << c.bytes;
    }
}

} // namespace
} // namespace ostrelum
