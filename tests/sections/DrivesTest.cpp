#include "tests/sections/SectionTest.h"

namespace ostrelum {
namespace {

using ::testing::ElementsAre;

/// So many KB in bytes, as the service delivers 64-bit numbers.
std::string kilobytes(double count)
{
    return std::to_string(static_cast<std::int64_t>(count * 1024));
}

Instance volume(const Value& size, const Value& free, const Value& name = " Data ",
                const Value& letter = " E: ", const Value& system = "vfat")
{
    return Instance({{"Caption", letter},
                     {"FileSystem", system},
                     {"FreeSpace", free},
                     {"Name", letter},
                     {"Size", size},
                     {"VolumeName", name},
                     {"VolumeSerialNumber", system.is_null() ? Value() : Value(" 1A2B ")}});
}

/// A slot of a card reader or an optical drive without a medium.
Instance empty_slot(const char* letter)
{
    return volume({}, {}, {}, letter, {});
}

class Drives : public SectionTest {
protected:
    void open(int section, const ResultSet& volumes)
    {
        const int type = section == 7 ? 3 : section == 11 ? 2 : 5;
        has["Win32_LogicalDisk where DriveType = " + std::to_string(type)] = volumes;
        SectionTest::open(section);
    }
    void open_anew(int section, const ResultSet& volumes)
    {
        press("LMenu", 8);
        open(section, volumes);
    }
};

TEST_F(Drives, AreListedSideBySide)
{
    SectionTest::open(7);
    EXPECT_EQ(shown(6), "Internal name: Disk A - Disk B");
    EXPECT_EQ(shown(9), "Total partitions: 3") << "of the last drive inside";
    SectionTest::open(11);
    EXPECT_EQ(shown(6), "Internal name: Stick - Box");
    EXPECT_EQ(F1.Laviso.Caption, "\r\n2 removable drives are conected.");
    SectionTest::open(12);
    EXPECT_THAT(shown(1, 7),
                ElementsAre("Name: Disc - Two", "Drive letter: (D:) - (F:)",
                            "Size: (4.48 GB) - (683.5 MB)", "Internal name: Burner - Reader",
                            "Drive type: DVD Writer - DVD Writer", "File system: UDF - UDF",
                            "Serial number: 1A2B - 1A2B"));
    EXPECT_EQ(F1.Laviso.Caption, "2 drives are loaded.\r\n1 drive is empty.");
}

TEST_F(Drives, InsideTakeTheUnitsFromTheDigits)
{
    const struct {
        double size, free;
        const char *capacity, *in_use, *available;
    } cases[] = {
        {2097152, 999, "(2 GB)", "(1.9 GB - 100%)", "(999 KB - 0%)"},
        {1024, 99, "(1 MB)", "(925 KB - 90%)", "(10%)"},
        {999.5, 998.5, "(0 MB)", "(2 KB - 0%)", "(998 KB - 100%)"},
        {999, 0, "kept", "(999 KB - 100%)", "(0%)"},
    };
    for (const auto& c : cases) {
        open(7, {volume(kilobytes(c.size), kilobytes(c.free))});
        EXPECT_EQ(F1.L(3).Caption, c.capacity) << c.size;
        EXPECT_EQ(F1.L(4).Caption, c.in_use) << c.size;
        EXPECT_EQ(F1.L(5).Caption, c.available) << c.size;
    }
    open(7, {volume({}, {})});
    EXPECT_THAT(shown(3, 5),
                ElementsAre("Capacity: kept", "Space in use: (0 K", "Free space: kept"))
        << "the separator of a percentage is cut off, and is not there";
}

TEST_F(Drives, InsideKeepTheSizesOfTheVolumeBeforeWhereTheirOwnAreNotHad)
{
    open(7, {volume(kilobytes(4096), kilobytes(1024), {}, "C:"), volume({}, {}, "B", {}, {}),
             volume(kilobytes(1LL << 31), kilobytes(2048), "C", "E:")});
    EXPECT_THAT(shown(1, 5), ElementsAre("Name: Local disk - B - C", "Drive letter: (C:) - (E:)",
                                         "Capacity: (4 MB) - (4 MB) - (4 MB)",
                                         "Space in use: (3 MB - 75%) - (3 MB - 75%) - (2 MB - 50%)",
                                         "Free space: (1 MB - 25%) - (1 MB - 25%) - (2 MB - 50%)"));
    EXPECT_EQ(F1.L(7).Caption, "vfat - vfat");
    has["Win32_DiskDrive"].clear();
    open(7, {});
    for (int row = 1; row <= 8; ++row) {
        EXPECT_EQ(F1.L(row).Caption, "kept") << row;
        EXPECT_EQ(F1.L(row).ToolTipText, "kept") << row;
    }
    EXPECT_EQ(shown(9), "Total partitions: Unknown");
}

TEST_F(Drives, OutsideWithoutAMediumAreListedToo)
{
    has["Win32_DiskDrive"].clear();
    open(11, {empty_slot("E:"), volume(kilobytes(10240), kilobytes(5120)), empty_slot("G:")});
    EXPECT_EQ(F1.Laviso.Caption, "\r\n1 removable drive is conected.");
    EXPECT_THAT(shown(1, 7), ElementsAre("Name:  -  Data  - ", "Drive letter: (E:) - (E:) - (G:)",
                                         "Capacity: (10 MB) - (10 MB)",
                                         "Space in use: (0 KB - 5 MB - 50%) - (5 MB - 50%)",
                                         "Free space: (0 KB - 5 MB - 50%) - (5 MB - 50%)",
                                         "Internal name: kept", "File system: vfat"));
    EXPECT_EQ(F1.L(6).ToolTipText, "kept");

    open(11, {volume("10239999", "1023999", {})});
    EXPECT_EQ(F1.L(1).Caption + F1.L(1).ToolTipText, "") << "no name, and no word for it";
    EXPECT_THAT(shown(3, 5), ElementsAre("Capacity: kept", "Space in use: (8.7 MB - 90%)",
                                         "Free space: (999 KB - 10%)"));
    open(11, ResultSet(300, volume("1024", "0")));
    EXPECT_EQ(F1.MediaCount, 255);
}

TEST_F(Drives, OpticalAreCountedAndMeasured)
{
    const Instance loaded = volume("1024", {}), empty = empty_slot("E:");
    const std::pair<ResultSet, const char*> counts[] = {
        {{loaded, empty}, "1 drive is loaded.\r\n1 drive is empty."},
        {{loaded, loaded}, "2 drives are loaded.\r\nNone CD/DVD drive is empty."},
        {{empty, loaded, empty}, "1 drive is loaded.\r\n2 drives are empties."}};
    for (const auto& [drives, text] : counts) {
        open_anew(12, drives);
        EXPECT_EQ(F1.Laviso.Caption, text);
    }
    for (const auto& [bytes, text] : pairs("1023=(0 KB)|102400000000=kept|2199023255552=(0 KB)")) {
        open_anew(12, {volume(bytes, {})});
        EXPECT_EQ(F1.L(3).Caption, text) << bytes;
    }
}

TEST_F(Drives, OpticalAreNotAskedAgainByAClickOnTheOpenPage)
{
    open(12, {volume("1024", {}), empty_slot("E:")});
    Datos.fill("used elsewhere");
    open(12, {volume("1024", {}, "Other")});
    EXPECT_TRUE(script.asked.empty());
    EXPECT_EQ(shown(1), "Name: Data");
    EXPECT_EQ(shown(4), "Internal name: Burner - Reader");
    EXPECT_EQ(F1.L(8).ToolTipText, "");
    EXPECT_EQ(F1.Laviso.Caption, "1 drive is loaded.\r\n1 drive is empty.");
    EXPECT_EQ(F1.Labelmi.Caption, "Done");
    F1.raise("Form", {.kind = EventKind::KeyDown, .key = Key::F5});
    EXPECT_EQ(shown(1), "Name: Other") << "the key asks anew";

    open_anew(12, {volume("1024", {}, {})});
    EXPECT_EQ(shown(1), "Name: kept");
    EXPECT_EQ(F1.L(1).ToolTipText, "kept");
    F1.Line2.Visible = true;
    open(12, {volume("1024", {}, "Now")});
    EXPECT_EQ(shown(1), "Name: Now") << "without a name the next click asks anew";
    EXPECT_FALSE(F1.Line2.Visible);
    has["Win32_CDROMDrive"].clear();
    open_anew(12, {volume("1024", {}, "Now")});
    open(12, {volume("1024", {}, "Other")});
    EXPECT_EQ(shown(1), "Name: Other") << "without a drive's name too";
}

} // namespace
} // namespace ostrelum
