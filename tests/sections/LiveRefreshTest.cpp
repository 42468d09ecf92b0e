#include "report/Report.h"
#include "tests/sections/SectionTest.h"

namespace ostrelum {
namespace {

using ::testing::ElementsAre;

constexpr const char* free_memory = "Select FreePhysicalMemory from Win32_OperatingSystem";

class LiveRefresh : public SectionTest {
protected:
    /// A page as its collector left it, the refresh running.
    void leave_open(std::uint8_t section)
    {
        leave_another_page();
        F1.Seccion = section;
        F1.Timer1.Enabled = true;
        script.asked.clear();
    }
    void tick_with(const char* class_name, const Changes& changes)
    {
        change(has[class_name], changes);
        tick("Timer1");
    }
    /// Titles, values, tooltips and places of the rows that a tick must leave alone.
    static void expect_untouched(std::initializer_list<int> rows)
    {
        for (const int row : rows) {
            EXPECT_EQ(shown(row), "old titlekept") << row;
            EXPECT_EQ(F1.L(row).ToolTipText, "old tooltip") << row;
        }
    }
};

TEST_F(LiveRefresh, TicksOnceASecondAndStopsOnAnyOtherPage)
{
    open(6);
    script.asked.clear();
    toolkit.advance(F1, 2500);
    EXPECT_THAT(script.asked, ElementsAre(free_memory, free_memory));
    for (const int section : {1, 3, 5, 7, 8, 9, 10, 11, 12, 90, 91}) {
        leave_open(static_cast<std::uint8_t>(section));
        tick("Timer1");
        EXPECT_FALSE(F1.Timer1.Enabled) << section;
        EXPECT_TRUE(script.asked.empty()) << section;
        expect_untouched({1, 4, 5, 9, 10, 11, 12});
    }
    open(13);
    open(8);
    EXPECT_TRUE(F1.Timer1.Enabled) << "a change of page is noticed at the next tick";
}

TEST_F(LiveRefresh, UsageTimeStepsUntilTheClockTellsItNoMore)
{
    leave_open(2);
    clock.milliseconds = 93784999;
    tick("Timer1");
    EXPECT_EQ(shown(9), "old title02:03:04 hs.");
    clock.milliseconds += 1;
    tick("Timer1");
    EXPECT_EQ(F1.L(9).Caption, "02:03:05 hs.");
    EXPECT_TRUE(script.asked.empty());
    expect_untouched({1, 8, 10});

    clock.milliseconds = 29U * 86400U * 1000U;
    F1.L(9).ToolTipText = "stale";
    tick("Timer1");
    EXPECT_FALSE(F1.Timer1.Enabled);
    EXPECT_EQ(F1.L(9).Caption, "02:03:05 hs.");
    EXPECT_EQ(F1.L(9).ToolTipText, "02:03:05 hs.");
}

TEST_F(LiveRefresh, ProcessesAndVirtualMemory)
{
    const struct {
        Value free, processes, total;
        const char *count, *memory;
    } cases[] = {
        {"3145728", 120, "4194304", "120", "Virtual memory in use: 1024 MB (25%) / 4096 MB (100%)"},
        {{}, {}, "1048576", "Unknown", "Total virtual memory: 1024 MB"},
        {"1024", "many", {}, "Unknown", "Virtual memory in use: Unknown"},
    };
    for (const auto& c : cases) {
        leave_open(4);
        tick_with("Win32_OperatingSystem", {{"FreeVirtualMemory", c.free},
                                            {"NumberOfProcesses", c.processes},
                                            {"TotalVirtualMemorySize", c.total}});
        EXPECT_EQ(shown(9), std::string("old title") + c.count);
        EXPECT_EQ(shown(11), c.memory);
        for (const int row : {9, 11}) {
            EXPECT_EQ(F1.L(row).ToolTipText, F1.L(row).Caption);
            EXPECT_EQ(F1.L(row).Left, F1.LT(row).Left + F1.LT(row).Width);
        }
        expect_untouched({8, 10, 12});
    }
    EXPECT_TRUE(F1.Timer1.Enabled);
}

TEST_F(LiveRefresh, MemoryGoesOnFromTheTotalOfThePageAfterAReport)
{
    has["Win32_PhysicalMemory"].resize(1);
    open(6);
    make_report();
    ASSERT_NE(Num1, 1048576) << "the report has sums of its own";
    tick_with("Win32_OperatingSystem", {{"FreePhysicalMemory", "786432"}});
    EXPECT_THAT(shown(3, 5), ElementsAre("Total memory: 1 GB", "Memory in use: 256 MB (25%)",
                                         "Available memory: 768 MB (75%)"));
    EXPECT_EQ(F1.L(5).ToolTipText, "768 MB (75%)");
    EXPECT_EQ(Num1, 1048576);

    lacking = "FreePhysicalMemory";
    tick("Timer1");
    EXPECT_EQ(shown(4), "Memory in use: Unknown") << "free memory is not kept from tick to tick";
    EXPECT_TRUE(F1.Timer1.Enabled) << "the next tick tries again";
    lacking = "none";
    tick_with("Win32_OperatingSystem", {{"FreePhysicalMemory", "524288"}});
    EXPECT_EQ(shown(4), "Memory in use: 512 MB (50%)");
}

TEST_F(LiveRefresh, TheBatteryIsWrittenInPlaceUntilItTellsNothing)
{
    leave_open(13);
    const int left = F1.L(10).Left = 300;
    tick_with("Win32_Battery", {{"EstimatedChargeRemaining", " 87 "}, {"EstimatedRunTime", {}}});
    EXPECT_THAT(shown(10, 12),
                ElementsAre("old title~ 12.5 V", "old title87%", "old titleUnknown"));
    EXPECT_EQ(F1.L(10).Left, left);
    EXPECT_TRUE(F1.Timer1.Enabled);
    expect_untouched({8, 9});

    tick_with(
        "Win32_Battery",
        {{"DesignVoltage", {}}, {"EstimatedChargeRemaining", 0}, {"EstimatedRunTime", 1966080}});
    EXPECT_THAT(shown(10, 12), ElementsAre("old titleUnknown", "old title0%", "old titleUnknown"));
    EXPECT_TRUE(F1.Timer1.Enabled);

    has["Win32_Battery"].clear();
    tick("Timer1");
    EXPECT_FALSE(F1.Timer1.Enabled);
    EXPECT_EQ(F1.L(11).Caption, "Unknown") << "the last tick still writes";
}

} // namespace
} // namespace ostrelum
