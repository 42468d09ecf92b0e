#include "tests/Stage.h"
#include "tests/sections/PageRows.h"

#include <gmock/gmock.h>

namespace ostrelum {
namespace {

using ::testing::ElementsAre;

constexpr const char* Speed = "Select MaxClockSpeed from Win32_Processor";
constexpr const char* Modules = "Select Capacity from Win32_PhysicalMemory";
constexpr const char* Cards = "Select AdapterRAM, Name from Win32_VideoController";
constexpr const char* Disks = "Select Freespace from Win32_LogicalDisk where DriveType = 3";
constexpr const char* System = "Select Caption from Win32_OperatingSystem";
constexpr const char* Board = "HKEY_CURRENT_USER\\Software\\Install\\Ostrelum\\Mainboard\\Full";

class SecSummaryPage : public Stage {
protected:
    SecSummaryPage() { start_program(); }

    static Instance only(const char* property, const Value& value)
    {
        return Instance(std::vector<Instance::Property>{{property, value}});
    }
    static Instance bytes(const char* property, std::int64_t megabytes)
    {
        return only(property, std::to_string(megabytes << 20));
    }
    static Instance card(const Value& memory, const Value& name)
    {
        return Instance({{"AdapterRAM", memory}, {"Name", name}});
    }
    void open() { press("LMenu", 1); }
};

TEST_F(SecSummaryPage, CondensesTheMachine)
{
    script.results = {{Speed, {only("MaxClockSpeed", 3000), only("MaxClockSpeed", 1)}},
                      {Modules, {bytes("Capacity", 512), bytes("Capacity", 1024)}},
                      {Cards, {card(268435456, " Fast card "), card(1, "Other card")}},
                      {Disks, {bytes("Freespace", 234), bytes("Freespace", 1000)}},
                      {System, {only("Caption", " System 7 ")}}};
    machine.processors = 2;
    store.values[Board] = std::string(" Board X ");
    press("LMenu", 3);
    leave_another_page();
    F1.LNoDrive.Visible = F1.Laviso.Visible = F1.Line1.Visible = F1.Line2.Visible = true;
    script.asked.clear();
    open();
    EXPECT_EQ(F1.Titulo.Caption, "Summary");
    EXPECT_THAT(shown(1, 12),
                ElementsAre("Main features", "", "Processor speed: 3 Ghz (2 CPUs)", "RAM: 1 GB",
                            "Graphics card memory: 256 MB", "Total free space: 1.2 GB", "",
                            "Others features", "", "Operating system: System 7",
                            "Graphics card: Fast card", "Motherboard: Board X"));
    EXPECT_THAT(script.asked, ElementsAre(Speed, Modules, Cards, Disks, System));
    EXPECT_EQ(F1.L(3).Left, F1.LT(3).Left + F1.LT(3).Width);
    EXPECT_EQ(F1.L(12).ToolTipText, "Board X");
    EXPECT_EQ(F1.L(2).ToolTipText + F1.L(8).ToolTipText, "");
    EXPECT_EQ(rows_with_title_tooltips(), 0b1111111000110);
    EXPECT_TRUE(F1.LT(1).Font.Italic && F1.LT(8).Font.Italic);
    EXPECT_EQ(F1.LT(8).ForeColor, RGB(SkinR, SkinG, SkinB));
    EXPECT_FALSE(F1.LNoDrive.Visible || F1.Laviso.Visible || F1.Line1.Visible || F1.Line2.Visible);
    EXPECT_FALSE(F1.Timer1.Enabled);
}

TEST_F(SecSummaryPage, WithoutTheServiceAllIsUnknown)
{
    leave_another_page();
    open();
    EXPECT_THAT(shown(1, 12),
                ElementsAre("Main features", "", "Processor speed: Unknown", "RAM: Unknown",
                            "Graphics card memory: Unknown", "Total free space: Unknown", "",
                            "Others features", "", "Operating system: Unknown",
                            "Graphics card: Unknown", "Motherboard: Unknown"));
}

TEST_F(SecSummaryPage, TellsTheSpeedByItsDigitsAndTheProcessors)
{
    const struct {
        Value megahertz;
        std::uint32_t processors;
        const char *sign, *text;
    } cases[] = {{800, 1, ".", "800 Mhz"},
                 {1000, 1, ".", "1 Ghz"},
                 {2394, 1, ",", "2,39 Ghz"},
                 {800, 2, ".", "0.8 Ghz (2 CPUs)"},
                 {2394, 128, ",", "2,39 Ghz (128 CPUs)"},
                 {99, 1, ".", "0.09 Ghz"},
                 {0, 2, ".", "Unknown"},
                 {-5, 1, ".", "Unknown"},
                 {{}, 4, ".", "Unknown"}};
    for (const auto& c : cases) {
        script.results[Speed] = {only("MaxClockSpeed", c.megahertz)};
        machine.processors = c.processors;
        regional.sign = c.sign;
        open();
        EXPECT_EQ(F1.L(3).Caption, c.text);
    }
}

TEST_F(SecSummaryPage, RoundsEachModuleAndEachDiskDownBeforeTheSum)
{
    const auto three_quarters_over = [](const char* property) {
        return only(property, std::to_string((100 << 20) + (3 << 18)));
    };
    script.results = {
        {Modules,
         {three_quarters_over("Capacity"), only("Capacity", {}), three_quarters_over("Capacity")}},
        {Disks, {three_quarters_over("Freespace"), Instance(), three_quarters_over("Freespace")}}};
    open();
    EXPECT_EQ(F1.L(4).Caption, "200 MB");
    EXPECT_EQ(F1.L(6).Caption, "200 MB");
}

TEST_F(SecSummaryPage, ShowsEveryAmountOfFreeSpace)
{
    const struct {
        std::int64_t megabytes;
        const char* text;
    } cases[] = {{0, "Unknown"},         {9, "9 MB"},
                 {10, "10 MB"},          {9999999, "9.53 TB"},
                 {10000000, "9.536 TB"}, {2147483647, "2047.99 TB"}};
    for (const auto& c : cases) {
        F1.L(6).Caption = "from another page";
        script.results[Disks] = {bytes("Freespace", c.megabytes)};
        open();
        EXPECT_EQ(F1.L(6).Caption, c.text) << c.megabytes;
        EXPECT_EQ(F1.L(6).ToolTipText, c.text) << c.megabytes;
    }
}

} // namespace
} // namespace ostrelum
