#include "tests/report/ReportTest.h"

namespace ostrelum {
namespace {

using Stages = ReportTest;

int count(const std::string& text, const std::string& part)
{
    int found = 0;
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++found;
    return found;
}

/// The rules themselves are tested with the pages; here is what a report does its own way.
TEST_F(Stages, ShowAFallbackWhereAPageWouldKeepItsCaption)
{
    const struct {
        const char* class_name;
        const char* property;
        Value value;
        const char* section;
        const char* label;
        const char* shown;
    } cases[] = {
        {"Win32_NetworkLoginProfile", "LastLogon", "soon", "User account",
         "Start time:", "Unknown"},
        {"Win32_OperatingSystem", "InstallDate", "20110230101112", "Operating system",
         "Date of installation:", "Unknown"},
        {"Win32_OperatingSystem", "TotalVirtualMemorySize", "1000", "Operating system",
         "Total virtual memory:", "Unknown"},
        {"Win32_Processor", "CurrentClockSpeed", 2400, "Processor", "Speed:", "2400 Mhz"},
        {"Win32_Processor", "L3CacheSize", "none", "Processor", "L3 cache size:", "Unknown"},
        {"Win32_LogicalDisk", "Caption", {}, "Hard drives", "Drive letter:", "(D:)"},
        {"Win32_DiskDrive", "Partitions", {}, "Hard drives", "Total partitions:", "3"},
        {"Win32_BIOS", "ReleaseDate", "long ago", "Bios", "Released:", "Unknown"},
        {"Win32_VideoController", "MinRefreshRate", {}, "Display", "Maximum update rate:", "75 Hz"},
        {"Win32_VideoController",
         "CurrentBitsPerPixel",
         {},
         "Display",
         "Current configuration:",
         "Unknown"},
    };
    const auto recorded = script.results;
    for (const auto& each : cases) {
        script.results = recorded;
        change(each.class_name, each.property, each.value);
        make_report();
        EXPECT_EQ(row(each.section, each.label), each.shown) << each.property;
    }
}

TEST_F(Stages, WithoutAServiceAReportHasAllSectionsAndItsFoot)
{
    make_report();
    script.results.clear();
    store.values.clear();
    system_api.metrics.clear();
    system_api.environment.clear();
    make_report();
    EXPECT_EQ(count(F2.Tb4, "\r\n------------------\r\n"), 12);
    EXPECT_EQ(count(F2.Tb1, "\\b0  \\i "), 78);
    EXPECT_EQ(count(F2.Tb4, " Unknown\r\n"), 75) << "nothing is left of the report before";
    EXPECT_EQ(row("Operating system", "Version and build:"), "");
    EXPECT_EQ(row("Operating system", "Service pack:"), "None");
    EXPECT_EQ(row("Processor", "Number of cores:"), "4");
    EXPECT_TRUE(F2.Tb2.ends_with("</html>"));
    EXPECT_EQ(F2.LStatus.Caption, "Report made at 0 second/s");
}

} // namespace
} // namespace ostrelum
