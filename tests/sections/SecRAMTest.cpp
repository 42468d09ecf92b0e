#include "tests/Stage.h"
#include "tests/sections/PageRows.h"

#include <gmock/gmock.h>

namespace ostrelum {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;

constexpr const char* Modules =
    "Select MemoryType, FormFactor, Capacity, DeviceLocator, TotalWidth from Win32_PhysicalMemory";
constexpr const char* Use =
    "Select FreePhysicalMemory, LargeSystemCache from Win32_OperatingSystem";

Instance module(const Value& type, const Value& capacity, const Value& locator = "DIMM 0")
{
    return Instance({{"Capacity", capacity},
                     {"DeviceLocator", locator},
                     {"FormFactor", 8},
                     {"MemoryType", type},
                     {"TotalWidth", 64}});
}

Instance use(const Value& free_kilobytes, const Value& cache)
{
    return Instance({{"FreePhysicalMemory", free_kilobytes}, {"LargeSystemCache", cache}});
}

class SecRAMPage : public Stage {
protected:
    SecRAMPage() { start_program(); }

    /// Bytes of a module of so many MB, as the service delivers 64-bit numbers.
    static std::string megabytes(std::int64_t count) { return std::to_string(count << 20); }
    void open(const ResultSet& modules, const ResultSet& system)
    {
        script.results = {{Modules, modules}, {Use, system}};
        press("LMenu", 6);
    }
};

TEST_F(SecRAMPage, AddsUpAllModulesAndShowsTheLastOnesKind)
{
    leave_another_page();
    F1.Line1.Visible = F1.Laviso.Visible = true;
    open({module(20, megabytes(1024)), module(21, megabytes(3072))}, {use("1048576", 1)});
    EXPECT_EQ(F1.Titulo.Caption, "RAM");
    EXPECT_THAT(shown(1, 12),
                ElementsAre("Type: DDR2", "Chip type: DIMM", "Total memory: 4 GB",
                            "Memory in use: 3072 MB (75%)", "Available memory: 1024 MB (25%)",
                            "Modules installed: 2", "Data bus width: 64 Bits", "Use: System cache",
                            "", "", "", ""));
    EXPECT_EQ(F1.L(4).ToolTipText, "3072 MB (75%)");
    EXPECT_EQ(F1.L(12).ToolTipText, "");
    EXPECT_EQ(rows_with_title_tooltips(), 0b1111111000110);
    EXPECT_FALSE(F1.LT(1).Font.Italic || F1.LT(8).Font.Italic);
    EXPECT_FALSE(F1.Line1.Visible || F1.Laviso.Visible);
    EXPECT_TRUE(F1.Timer1.Enabled);
}

TEST_F(SecRAMPage, ChoosesUnitsByDigitsAndRoundsHalvesToEven)
{
    const struct {
        std::int64_t megabytes;
        const char *free, *total, *in_use, *available;
    } cases[] = {
        {768, "98304", "768 MB", "672 MB (88%)", "96 MB (12%)"},
        {1000, "1023", "0 GB", "999 MB (100%)", "0 MB (0%)"},
        {2047, "1", "1 GB", "2046 MB (100%)", "0 MB (0%)"},
        {2048, "0", "2 GB", "Unknown", "Unknown"},
    };
    for (const auto& c : cases) {
        open({module(20, megabytes(c.megabytes))}, {use(c.free, 0)});
        EXPECT_EQ(F1.L(3).Caption, c.total) << c.megabytes;
        EXPECT_EQ(F1.L(4).Caption, c.in_use) << c.megabytes;
        EXPECT_EQ(F1.L(5).Caption, c.available) << c.megabytes;
        EXPECT_EQ(F1.L(8).Caption, "Applications");
    }
}

TEST_F(SecRAMPage, WhatOneModuleDoesNotTellStaysAsTheOthersLeftIt)
{
    open({module(18, megabytes(512)), module({}, {}, "  "), module({}, megabytes(512), {}),
          module({}, {}, {})},
         {});
    EXPECT_EQ(F1.L(1).Caption, "SGRAM");
    EXPECT_EQ(F1.L(3).Caption, "1 GB");
    EXPECT_EQ(F1.L(6).Caption, "3") << "a blank place is not counted, one that is not told is";
    EXPECT_THAT(shown(4, 5), ElementsAre("Memory in use: Unknown", "Available memory: Unknown"));
    EXPECT_EQ(shown(8), "Use: Unknown");
}

TEST_F(SecRAMPage, CapacitiesBeyond32BitsOfKilobytesAreLeftOut)
{
    open({module(20, megabytes(512)), module(20, megabytes(std::int64_t{2} << 20))}, {});
    EXPECT_EQ(F1.L(3).Caption, "512 MB");
    EXPECT_EQ(F1.L(6).Caption, "2");
}

TEST_F(SecRAMPage, AShareThatOverflowsKeepsTheRow)
{
    leave_another_page();
    open({module(20, megabytes(32768))}, {use("21474836", 0)});
    EXPECT_EQ(shown(4), "Memory in use: 11796 MB (36%)") << "2147483600 still fits";
    EXPECT_EQ(F1.L(5).Caption, "20971 MB (64%)");
    leave_another_page();
    open({module(20, megabytes(32768))}, {use("21474837", 0)});
    EXPECT_EQ(shown(5), "Available memory: kept");
    EXPECT_EQ(F1.L(5).ToolTipText, "kept");
}

TEST_F(SecRAMPage, WithoutTheServiceAllIsUnknown)
{
    script.results.clear();
    press("LMenu", 6);
    for (int row = 1; row <= 8; ++row)
        EXPECT_EQ(F1.L(row).Caption, "Unknown") << row;
    EXPECT_TRUE(F1.Timer1.Enabled);
}

} // namespace
} // namespace ostrelum
