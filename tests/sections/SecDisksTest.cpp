#include "tests/Stage.h"
#include "tests/sections/PageRows.h"
#include "tests/sections/Volumes.h"

#include <gmock/gmock.h>

namespace ostrelum {
namespace {

using ::testing::ElementsAre;

constexpr const char* Volumes = "Select VolumeName, Caption, Size, Freespace, FileSystem, "
                                "VolumeSerialNumber from Win32_LogicalDisk where DriveType = 3";
constexpr const char* Drives = "Select InterfaceType, Caption, Partitions from Win32_DiskDrive";

Instance drive(const Value& bus, const char* name, const Value& partitions)
{
    return Instance({{"Caption", name}, {"InterfaceType", bus}, {"Partitions", partitions}});
}

class SecDisksPage : public Stage {
protected:
    SecDisksPage() { start_program(); }

    void open(const ResultSet& volumes, const ResultSet& drives = {})
    {
        leave_another_page();
        script.results = {{Volumes, volumes}, {Drives, drives}};
        press("LMenu", 7);
    }
};

TEST_F(SecDisksPage, ListsAllVolumesSideBySide)
{
    F1.Line1.Visible = F1.Line2.Visible = true;
    open({volume(kilobytes(244140625), kilobytes(128593750), " System ", "C:", "ext4"),
          volume(kilobytes(732566646), kilobytes(719339520), "  ", "D:", "btrfs")},
         {drive("IDE", "Disk A", 2), drive("SCSI", " Disk B ", 3), drive("USB", "Stick", 1)});
    EXPECT_EQ(F1.Titulo.Caption, "Hard drives");
    EXPECT_THAT(shown(1, 12),
                ElementsAre("Name: System - Local disk", "Drive letter: (C:) - (D:)",
                            "Capacity: (232.8 GB) - (698.6 GB)",
                            "Space in use: (110.1 GB - 47%) - (12.6 GB - 2%)",
                            "Free space: (122.6 GB - 53%) - (686.0 GB - 98%)",
                            "Internal name: Disk A - Disk B", "File system: ext4 - btrfs",
                            "Serial number: 1A2B - 1A2B", "Total partitions: 3", "", "", ""));
    EXPECT_EQ(F1.L(5).ToolTipText, "(122.6 GB - 53%) - (686.0 GB - 98%)");
    EXPECT_EQ(rows_with_title_tooltips(), 0b1111111000110);
    EXPECT_FALSE(F1.LT(1).Font.Italic || F1.LT(8).Font.Italic);
    EXPECT_FALSE(F1.Line1.Visible || F1.Line2.Visible);
}

TEST_F(SecDisksPage, SizesTakeTheirUnitFromTheirDigits)
{
    const struct {
        double size, free;
        const char *capacity, *in_use, *available;
    } cases[] = {
        {1000000, 0, "(0.9 GB)", "(0.9 GB - 100%)", "(0%)"},
        {2097152, 999, "(2 GB)", "(1.9 GB - 100%)", "(999 KB - 0%)"},
        {1024, 99, "(1 MB)", "(925 KB - 90%)", "(10%)"},
        {1023, 924, "(0 MB)", "(99 KB - 10%)", "(924 KB - 90%)"},
        {999.5, 998.5, "(0 MB)", "(2 KB - 0%)", "(998 KB - 100%)"},
        {999, 0, "kept", "(999 KB - 100%)", "(0%)"},
        {1953125000, 1953125000, "(1862.6 GB)", "(0 KB - 0%)", "(1862.6 GB - 100%)"},
    };
    for (const auto& c : cases) {
        open({volume(c.size * 1024, c.free * 1024)});
        EXPECT_EQ(F1.L(3).Caption, c.capacity) << c.size;
        EXPECT_EQ(F1.L(4).Caption, c.in_use) << c.size;
        EXPECT_EQ(F1.L(5).Caption, c.available) << c.size;
    }
}

TEST_F(SecDisksPage, NullsAddNothingAndSizesThatAreNotHadStayAsTheVolumeBeforeLeftThem)
{
    open({volume(kilobytes(4096), kilobytes(1024), {}, "C:"), volume({}, {}, "B", {}, {}),
          volume(kilobytes(std::int64_t{1} << 31), kilobytes(2048), "C", "E:")});
    EXPECT_THAT(shown(1, 5), ElementsAre("Name: Local disk - B - C", "Drive letter: (C:) - (E:)",
                                         "Capacity: (4 MB) - (4 MB) - (4 MB)",
                                         "Space in use: (3 MB - 75%) - (3 MB - 75%) - (2 MB - 50%)",
                                         "Free space: (1 MB - 25%) - (1 MB - 25%) - (2 MB - 50%)"));
    EXPECT_EQ(F1.L(7).Caption, "vfat - vfat");
}

TEST_F(SecDisksPage, WithoutAnEntryARowKeepsItsValue)
{
    open({}, {drive({}, "No bus", 4), drive("IDE ", "Not exactly", 5)});
    for (int row = 1; row <= 8; ++row) {
        EXPECT_EQ(F1.L(row).Caption, "kept") << row;
        EXPECT_EQ(F1.L(row).ToolTipText, "kept") << row;
    }
    EXPECT_EQ(F1.LT(8).Caption, "Serial number: ");
    EXPECT_EQ(F1.L(9).Caption, "Unknown");
}

TEST_F(SecDisksPage, AVolumeWithoutASizeHasNoPercentage)
{
    open({volume({}, {})});
    EXPECT_EQ(F1.L(3).Caption, "kept");
    EXPECT_EQ(F1.L(4).Caption, "(0 K")
        << "the separator of a percentage is cut off, and is not there";
    EXPECT_EQ(F1.L(5).Caption, "kept");
}

} // namespace
} // namespace ostrelum
