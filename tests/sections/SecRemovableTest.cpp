#include "tests/Stage.h"
#include "tests/sections/PageRows.h"
#include "tests/sections/Volumes.h"

#include <gmock/gmock.h>

namespace ostrelum {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;

constexpr const char* Count = "Select Size from Win32_LogicalDisk where DriveType = 2";
constexpr const char* Volumes = "Select VolumeName, Caption, Size, Freespace, FileSystem, "
                                "VolumeSerialNumber from Win32_LogicalDisk where DriveType = 2";
constexpr const char* Drives = "Select InterfaceType, Caption from Win32_DiskDrive";

/// A slot of a card reader without a card.
Instance empty_slot(const char* letter)
{
    return volume({}, {}, {}, letter, {});
}

Instance drive(const Value& bus, const char* name)
{
    return Instance({{"Caption", name}, {"InterfaceType", bus}});
}

class SecRemovablePage : public Stage {
protected:
    SecRemovablePage() { start_program(); }

    void open(const ResultSet& volumes, const ResultSet& drives = {})
    {
        leave_another_page();
        script.results = {{Count, volumes}, {Volumes, volumes}, {Drives, drives}};
        press("LMenu", 11);
    }
};

TEST_F(SecRemovablePage, ListsTheVolumesAndTheDrivesOutside)
{
    F1.LNoDrive.Visible = F1.Line2.Visible = true;
    open({volume(kilobytes(7812000), kilobytes(5242880), "DATA"),
          volume(kilobytes(99999), kilobytes(0), "", " F: ")},
         {drive("USB", " Stick "), drive("IDE", "Disk"), drive("1394", "Box"), drive({}, "None")});
    EXPECT_EQ(F1.Titulo.Caption, "Removable memory");
    EXPECT_THAT(shown(1, 12),
                ElementsAre("Name: DATA - Removable memory", "Drive letter: (E:) - (F:)",
                            "Capacity: (7.45 GB) - (97.6 MB)",
                            "Space in use: (2.45 GB - 33%) - (97.6 MB - 100%)",
                            "Free space: (5 GB - 67%) - (0 KB - 0%)", "Internal name: Stick - Box",
                            "File system: vfat - vfat", "Serial number: 1A2B - 1A2B", "", "", "",
                            ""));
    EXPECT_EQ(F1.L(8).ToolTipText, "1A2B - 1A2B");
    EXPECT_EQ(F1.L(9).ToolTipText, "");
    EXPECT_EQ(rows_with_title_tooltips(), 0b1111111000110);
    EXPECT_EQ(F1.MediaCount, 2);
    EXPECT_EQ(F1.Laviso.Caption, "\r\n2 removable drives are conected.");
    EXPECT_EQ(F1.Laviso.ForeColor, RGB(0, 145, 0));
    EXPECT_TRUE(F1.Laviso.Visible && F1.Iaviso.Visible && F1.Line1.Visible);
    EXPECT_EQ(F1.Line1.Y1, F1.LT(9).Top + 4);
    EXPECT_EQ(F1.Line1.Y2, F1.Line1.Y1);
    EXPECT_FALSE(F1.LNoDrive.Visible || F1.Line2.Visible);
    EXPECT_FALSE(F1.LT(1).Font.Italic || F1.LT(8).Font.Italic);
}

TEST_F(SecRemovablePage, WithoutAMediumTheNoticeStandsAloneOnThePage)
{
    F1.Line1.Visible = true;
    open({empty_slot("E:"), empty_slot("F:"), volume("0", "0"), volume("none", "0")},
         {drive("USB", "Reader")});
    EXPECT_THAT(shown(1, 12), Each(""));
    for (int row = 1; row <= 12; ++row)
        EXPECT_EQ(F1.L(row).ToolTipText, "") << row;
    EXPECT_EQ(rows_with_title_tooltips(), 0b1111000000000);
    EXPECT_EQ(F1.MediaCount, 0);
    EXPECT_EQ(script.asked.back(), Count) << "nothing else is asked";
    EXPECT_TRUE(F1.LNoDrive.Visible);
    EXPECT_EQ(F1.LNoDrive.Caption, "None removable drive has been conected");
    EXPECT_EQ(F1.Laviso.Caption, "Couldn't detect any removable drive connected to the PC.\r\n"
                                 "Please, connect at least a removable drive.");
    EXPECT_EQ(F1.Laviso.ForeColor, RGB(75, 75, 75));
    EXPECT_TRUE(F1.Laviso.Visible && F1.Iaviso.Visible);
    EXPECT_FALSE(F1.Line1.Visible);
    press("LMenu", 8);
    EXPECT_FALSE(F1.LNoDrive.Visible || F1.Laviso.Visible || F1.Iaviso.Visible);
}

TEST_F(SecRemovablePage, TheNoticeStandsByLanguageAndFont)
{
    const struct {
        const char* language;
        std::uint8_t fonts;
        int top, height;
    } cases[] = {
        {"English", 32, 170, 220}, {"Spanish", 32, 170, 220}, {"Dutch", 32, 135, 280},
        {"English", 0, 190, 220},  {"Spanish", 0, 190, 220},  {"Dutch", 0, 160, 260},
        {"English", 32, 170, 220},
    };
    for (const auto& c : cases) {
        Idioma = c.language;
        FontsOk = c.fonts;
        open({});
        EXPECT_EQ(F1.LNoDrive.Top, c.top) << c.language << " " << int{c.fonts};
        EXPECT_EQ(F1.LNoDrive.Height, c.height) << c.language << " " << int{c.fonts};
        EXPECT_EQ(F1.LNoDrive.Left, 250);
    }
}

TEST_F(SecRemovablePage, ASlotWithoutACardTakesTheSizesOfTheOneBefore)
{
    open({empty_slot("E:"), volume(kilobytes(10240), kilobytes(5120)), empty_slot("G:")});
    EXPECT_EQ(F1.Laviso.Caption, "\r\n1 removable drive is conected.");
    EXPECT_THAT(shown(1, 5), ElementsAre("Name:  -  Data  - ", "Drive letter: (E:) - (E:) - (G:)",
                                         "Capacity: (10 MB) - (10 MB)",
                                         "Space in use: (0 KB - 5 MB - 50%) - (5 MB - 50%)",
                                         "Free space: (0 KB - 5 MB - 50%) - (5 MB - 50%)"));
    EXPECT_EQ(shown(6), "Internal name: kept");
    EXPECT_EQ(F1.L(6).ToolTipText, "kept");
    EXPECT_EQ(shown(7), "File system: vfat");
}

TEST_F(SecRemovablePage, KilobytesAreRoundedDownAndSmallVolumesHaveNoCapacity)
{
    open({volume("10239999", "1023999", {})});
    EXPECT_EQ(F1.L(1).Caption + F1.L(1).ToolTipText, "") << "no name, and no word for it";
    EXPECT_EQ(F1.L(3).Caption, "kept") << "9999 KB";
    EXPECT_EQ(F1.L(5).Caption, "(999 KB - 10%)");
    EXPECT_EQ(F1.L(4).Caption, "(8.7 MB - 90%)");
}

TEST_F(SecRemovablePage, TheCountStaysAt255)
{
    open(ResultSet(300, volume("1024", "0")));
    EXPECT_EQ(F1.MediaCount, 255);
}

} // namespace
} // namespace ostrelum
