#include "tests/sections/SectionTest.h"

namespace ostrelum {
namespace {

using ::testing::ElementsAre;

Instance module(const Value& type, const Value& capacity, const Value& locator = "DIMM 0")
{
    return Instance({{"Capacity", capacity},
                     {"DeviceLocator", locator},
                     {"FormFactor", 8},
                     {"MemoryType", type},
                     {"TotalWidth", 64}});
}

class Memory : public SectionTest {
protected:
    /// Bytes of a module of so many MB, as the service delivers 64-bit numbers.
    static std::string megabytes(std::int64_t count) { return std::to_string(count << 20); }
    void open_with(const ResultSet& modules, const Value& free_kilobytes, int cache = 0)
    {
        has["Win32_PhysicalMemory"] = modules;
        change(has["Win32_OperatingSystem"],
               {{"FreePhysicalMemory", free_kilobytes}, {"LargeSystemCache", cache}});
        open(6);
    }
};

TEST_F(Memory, AddsUpAllModulesAndShowsTheLastOnesKind)
{
    open(6);
    EXPECT_THAT(shown(1, 3), ElementsAre("Type: DDR2", "Chip type: DIMM", "Total memory: 4 GB"));
    EXPECT_EQ(shown(8), "Use: System cache");
    open_with({module(18, megabytes(512)), module({}, {}, "  "), module({}, megabytes(512), {}),
               module({}, {}, {}), module({}, megabytes(2 << 20))},
              {});
    EXPECT_EQ(F1.L(1).Caption, "SGRAM");
    EXPECT_EQ(F1.L(3).Caption, "1 GB") << "without what is beyond 32 bits of KB";
    EXPECT_EQ(F1.L(6).Caption, "4") << "a blank place is not counted, one that is not told is";
    EXPECT_THAT(shown(4, 5), ElementsAre("Memory in use: Unknown", "Available memory: Unknown"));
}

TEST_F(Memory, ChoosesUnitsByDigitsAndRoundsHalvesToEven)
{
    const struct {
        std::int64_t megabytes;
        const char *free, *total, *in_use, *available;
    } cases[] = {
        {768, "98304", "768 MB", "672 MB (88%)", "96 MB (12%)"},
        {1000, "1023", "0 GB", "999 MB (100%)", "0 MB (0%)"},
        {2047, "1", "1 GB", "2046 MB (100%)", "0 MB (0%)"},
        {2048, "0", "2 GB", "Unknown", "Unknown"},
        {32768, "21474836", "32 GB", "11796 MB (36%)", "20971 MB (64%)"}, // 2147483600 still fits
        {32768, "21474837", "32 GB", "11796 MB (36%)", "kept"},
    };
    for (const auto& c : cases) {
        open_with({module(20, megabytes(c.megabytes))}, c.free);
        EXPECT_EQ(F1.L(3).Caption, c.total) << c.megabytes;
        EXPECT_EQ(F1.L(4).Caption, c.in_use) << c.megabytes;
        EXPECT_EQ(F1.L(5).Caption, c.available) << c.megabytes;
        EXPECT_EQ(F1.L(5).ToolTipText, c.available) << c.megabytes;
        EXPECT_EQ(F1.L(8).Caption, "Applications");
    }
}

} // namespace
} // namespace ostrelum
