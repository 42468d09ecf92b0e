#include "tests/Stage.h"
#include "tests/sections/PageRows.h"

#include <gmock/gmock.h>

namespace ostrelum {
namespace {

using ::testing::ElementsAre;

constexpr const char* FullName = "HKEY_CURRENT_USER\\Software\\Install\\Ostrelum\\Mainboard\\Full";
constexpr const char* Boards = "Select Manufacturer, Product from Win32_BaseBoard";
constexpr const char* Sounds = "Select Name, Manufacturer from Win32_SoundDevice";
constexpr const char* Batteries = "Select DesignVoltage, DeviceID, EstimatedChargeRemaining, "
                                  "EstimatedRunTime, Name from Win32_Battery";

Instance sound(const char* name)
{
    return Instance({{"Manufacturer", " Sounds "}, {"Name", name}});
}

Instance battery(const Value& millivolts, const Value& percent, const Value& minutes,
                 const Value& name = "\x0E"
                                     "Cell\x0E 6 ")
{
    return Instance({{"DesignVoltage", millivolts},
                     {"DeviceID", "B-1"},
                     {"EstimatedChargeRemaining", percent},
                     {"EstimatedRunTime", minutes},
                     {"Name", name}});
}

class SecOtherPage : public Stage {
protected:
    SecOtherPage() { start_program(); }

    void open(const ResultSet& batteries)
    {
        leave_another_page();
        script.results[Batteries] = batteries;
        press("LMenu", 13);
    }
};

TEST_F(SecOtherPage, ShowsBoardSoundAndTheFirstBattery)
{
    store.values[FullName] = " Board of mine ";
    script.results[Boards] = {Instance({{"Manufacturer", "Boards"}, {"Product", {}}})};
    script.results[Sounds] = {sound("Card"), sound("Second")};
    open({battery("12470", 87, "95"), battery("1", 1, "1", "Second")});
    EXPECT_EQ(F1.Titulo.Caption, "Others hardware");
    EXPECT_THAT(shown(1, 12),
                ElementsAre("Motherboard name: Board of mine", "Manufacturer: Boards",
                            "Internal name: Unknown", "", "Sound card name: Card",
                            "Manufacturer: Sounds", "", "Battery name: Cell 6",
                            "Serial number: B-1", "Current voltage: ~ 12.5 V",
                            "Load percentage: 87%", "Remaining usage time: 01:35 hs."));
    EXPECT_EQ(F1.L(8).ToolTipText, "Cell 6");
    EXPECT_EQ(F1.L(4).ToolTipText + F1.L(7).ToolTipText, "");
    EXPECT_EQ(rows_with_title_tooltips(), 0b1111111000110);
    EXPECT_TRUE(F1.Line1.Visible && F1.Line2.Visible && F1.Timer1.Enabled);
    EXPECT_EQ(F1.Line1.Y1, F1.LT(4).Top + 10);
    EXPECT_EQ(F1.Line2.Y2, F1.LT(7).Top + 10);
    EXPECT_FALSE(F1.LT(1).Font.Italic || F1.LT(8).Font.Italic);
}

TEST_F(SecOtherPage, FiguresOfTheBattery)
{
    const struct {
        Value millivolts, percent, minutes;
        const char *volts, *charge, *time;
    } cases[] = {
        {"11100", 0, 0, "~ 11.1 V", "0%", "00:00 hs."},
        {0, 100, 1500, "~ 0 V", "100%", "01:00 hs."},
        {"12450", {}, 1966079, "~ 12.4 V", "Unknown", "07:59 hs."},
        {12350, " ", 1966080, "~ 12.4 V", "Unknown", "kept"},
        {"12.5", 5, "long", "kept", "5%", "kept"},
        {"high", 5, -1, "kept", "5%", "kept"},
        {3000, 5, {}, "~ 3 V", "5%", "Unknown"},
    };
    for (const auto& c : cases) {
        open({battery(c.millivolts, c.percent, c.minutes)});
        EXPECT_THAT(shown(10, 12), ElementsAre(std::string("Current voltage: ") + c.volts,
                                               std::string("Load percentage: ") + c.charge,
                                               std::string("Remaining usage time: ") + c.time));
    }
    regional.sign = ",";
    open({battery(12470, 5, 5)});
    EXPECT_EQ(F1.L(10).Caption, "~ 12,5 V");
}

TEST_F(SecOtherPage, ANumberInTheRegistryIsANameToo)
{
    store.values[FullName] = 990U;
    open({});
    EXPECT_EQ(F1.L(1).Caption, "990");
}

TEST_F(SecOtherPage, WithoutServiceAndShellAllIsUnknown)
{
    service_gone = shell_gone = true;
    start_program();
    press("LMenu", 13);
    for (const int row : {1, 2, 3, 5, 6, 8, 9, 10, 11, 12})
        EXPECT_EQ(F1.L(row).Caption, "Unknown") << row;
    EXPECT_EQ(F1.LT(12).Caption, "Remaining usage time: ");
    EXPECT_TRUE(F1.Timer1.Enabled);
}

} // namespace
} // namespace ostrelum
