#include "tests/Stage.h"
#include "tests/sections/PageRows.h"

#include <gmock/gmock.h>

namespace ostrelum {
namespace {

using ::testing::ElementsAre;

constexpr const char* Monitors = "Select Name, MonitorManufacturer from Win32_DesktopMonitor";
constexpr const char* Cards =
    "Select CurrentHorizontalResolution, CurrentVerticalResolution, CurrentBitsPerPixel, "
    "CurrentRefreshRate, MinRefreshRate, MaxRefreshRate, Name, AdapterDACType, "
    "InstalledDisplayDrivers, DriverVersion, DriverDate, AdapterRAM from Win32_VideoController";

Instance monitor(const char* name, const Value& maker)
{
    return Instance({{"MonitorManufacturer", maker}, {"Name", name}});
}

struct Card {
    Value width = 1280, height = 1024, bits = 32, rate = 60;
    Value min = 56, max = 75;
    Value date = "20110803000000.000000-000";
    Value memory = 268435456;
    const char* name = " Card A ";
};

Instance card(const Card& c)
{
    return Instance({{"AdapterDACType", "Integrated"},
                     {"AdapterRAM", c.memory},
                     {"CurrentBitsPerPixel", c.bits},
                     {"CurrentHorizontalResolution", c.width},
                     {"CurrentRefreshRate", c.rate},
                     {"CurrentVerticalResolution", c.height},
                     {"DriverDate", c.date},
                     {"DriverVersion", "6.1"},
                     {"InstalledDisplayDrivers", {}},
                     {"MaxRefreshRate", c.max},
                     {"MinRefreshRate", c.min},
                     {"Name", c.name}});
}

class SecDisplayPage : public Stage {
protected:
    SecDisplayPage() { start_program(); }

    void open(const ResultSet& monitors, const ResultSet& cards)
    {
        leave_another_page();
        script.results = {{Monitors, monitors}, {Cards, cards}};
        press("LMenu", 9);
    }
    void open(const Card& c) { open({}, {card(c)}); }
};

TEST_F(SecDisplayPage, ShowsTheFirstMonitorAndTheFirstCard)
{
    F1.Line2.Visible = true;
    open({monitor("Panel", " Maker "), monitor("Second", "Other")},
         {card({}), card({.name = "Card B"})});
    EXPECT_EQ(F1.Titulo.Caption, "Display");
    EXPECT_THAT(shown(1, 12),
                ElementsAre("Display name: Panel", "Manufacturer: Maker",
                            "Current configuration: 1280 x 1024 pixels, 32 bits, 60 Hz",
                            "Update rate minimum and maximum: 56 Hz - 75 Hz", "",
                            "Graphics card name: Card A", "Memory size: 256 MB",
                            "Memory type: Integrated", "Driver name: Unknown",
                            "Driver version: 6.1", "Driver date: 03/08/2011", ""));
    EXPECT_EQ(F1.LT(3).ToolTipText, Trad[111]);
    EXPECT_EQ(F1.LT(5).ToolTipText + F1.L(5).ToolTipText, "");
    EXPECT_EQ(F1.LT(6).ToolTipText, "old title");
    EXPECT_TRUE(F1.Line1.Visible);
    EXPECT_EQ(F1.Line1.Y1, F1.LT(5).Top + 10);
    EXPECT_EQ(F1.Line1.Y2, F1.Line1.Y1);
    EXPECT_EQ(F1.Line1.X2, 488);
    EXPECT_FALSE(F1.Line2.Visible || F1.LT(1).Font.Italic || F1.LT(8).Font.Italic);
    press("LMenu", 8);
    EXPECT_FALSE(F1.Line1.Visible);
}

TEST_F(SecDisplayPage, TheLimitsOfTheRefreshRateChooseTheRow)
{
    const struct {
        Value min, max;
        const char* row;
        std::size_t explanation;
    } cases[] = {
        {0, 75, "Maximum update rate: 75 Hz", 114},
        {{}, 75, "Maximum update rate: 75 Hz", 114},
        {56, {}, "Minimum update rate: 56 Hz", 116},
        {60, 60, "Maximum update rate: 60 Hz", 114},
        {56, 75, "Update rate minimum and maximum: 56 Hz - 75 Hz", 118},
        {0, {}, "Update rate minimum and maximum: Unknown", 118},
    };
    for (const auto& c : cases) {
        open({.min = c.min, .max = c.max});
        EXPECT_EQ(shown(4), c.row);
        EXPECT_EQ(F1.LT(4).ToolTipText, Trad[c.explanation]) << c.row;
    }
}

TEST_F(SecDisplayPage, TheModeNeedsAllFourFiguresAndPassesOverNulls)
{
    const struct {
        Card card;
        const char* mode;
    } cases[] = {
        {{.bits = {}}, "1280 x 1024 pixels, (2) bits, 60 Hz"},
        {{.width = 0}, "Unknown"},
        {{.rate = 0}, "Unknown"},
        {{.width = {}}, "Unknown"},
        {{.height = {}}, "Unknown"},
        {{.rate = {}}, "Unknown"},
        {{.width = {}, .bits = 0}, "Unknown"},
    };
    for (const auto& c : cases) {
        open(c.card);
        EXPECT_EQ(F1.L(3).Caption, c.mode);
    }
}

TEST_F(SecDisplayPage, CardMemoryIsInWholeMegabytes)
{
    const struct {
        Value bytes;
        const char* shown;
    } cases[] = {{1073741824, "1 GB"}, {1610612736, "1 GB"}, {1048575, "Unknown"},
                 {{}, "Unknown"},      {2097151.0, "1 MB"},  {"4294967295", "3 GB"}};
    for (const auto& c : cases) {
        open({.memory = c.bytes});
        EXPECT_EQ(F1.L(7).Caption, c.shown);
    }
}

TEST_F(SecDisplayPage, ADriverDateThatIsNoneKeepsTheRow)
{
    open({.date = "unknown"});
    EXPECT_EQ(shown(11), "Driver date: kept");
    EXPECT_EQ(F1.L(11).ToolTipText, "kept");
    open({.date = {}});
    EXPECT_EQ(shown(11), "Driver date: Unknown");
}

TEST_F(SecDisplayPage, WithoutInstancesAllIsUnknown)
{
    open({}, {});
    for (const int row : {1, 2, 3, 4, 6, 7, 8, 9, 10, 11})
        EXPECT_EQ(F1.L(row).Caption, "Unknown") << row;
    EXPECT_EQ(F1.LT(4).Caption, "Update rate minimum and maximum: ");
}

} // namespace
} // namespace ostrelum
