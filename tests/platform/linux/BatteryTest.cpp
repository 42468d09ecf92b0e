#include "tests/Split.h"
#include "tests/platform/linux/MadeMachine.h"

#include <gmock/gmock.h>

namespace ostrelum {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
/// The batteries of a machine with one, whose files are written as "name=content|name=content".
std::vector<std::string> batteries(const std::string& properties, const std::string& files)
{
    const MadeMachine machine;
    std::vector<MadeMachine::DeviceFile> all{{"type", "Battery"}};
    for (const auto& [name, content] : pairs(files))
        all.push_back({name, content});
    machine.device("acpi/PNP0C0A:00", "power_supply/BAT0", all);
    return machine.rows("Select " + properties + " from Win32_Battery");
}

TEST(Battery, OnlyThoseThatFeedTheMachineCount)
{
    EXPECT_THAT(batteries("Name", "present=1"), ElementsAre("BAT0|BAT0"));
    EXPECT_THAT(batteries("Name", "scope=System"), ElementsAre("BAT0|BAT0"));
    EXPECT_THAT(batteries("Name", "scope=Device"), IsEmpty());
    EXPECT_THAT(batteries("Name", "present=0"), IsEmpty());
}

TEST(Battery, IsKnownBySerialNumberMakerAndName)
{
    EXPECT_THAT(batteries("Name", "serial_number= 123|manufacturer=ABC |model_name=X9"),
                ElementsAre("123ABCX9|X9"));
    EXPECT_THAT(batteries("Name", "serial_number=0000|manufacturer=ABC|model_name="),
                ElementsAre("ABC|BAT0"));
}

TEST(Battery, VoltageChargeAndTime)
{
    const struct {
        const char *what, *files, *row;
    } cases[] = {
        {"nothing known", "", "null|BAT0|null|null"},
        {"the present voltage before the design's",
         "voltage_now=12470999|voltage_min_design=11100000", "12470|BAT0|null|null"},
        {"the design's voltage", "voltage_min_design=11100000", "11100|BAT0|null|null"},
        {"a charge above all of it", "capacity=103", "null|BAT0|100|null"},
        {"an empty battery", "status=Discharging|capacity=0|energy_now=0|power_now=5",
         "null|BAT0|0|0"},
        {"charge by energy", "energy_now=29990000|energy_full=40000000|charge_now=1|charge_full=1",
         "null|BAT0|74|null"},
        {"a full charge of nothing", "energy_now=5|energy_full=0", "null|BAT0|null|null"},
        {"time by what flows out, which some drivers give as negative",
         "status=Discharging|charge_now=1900000|current_now=-1200000", "null|BAT0|null|95"},
        {"time as the battery tells it",
         "status=Discharging|time_to_empty_now=5999|energy_now=1|power_now=1", "null|BAT0|null|99"},
        {"no time on mains", "status=Charging|energy_now=4000|power_now=1000",
         "null|BAT0|null|null"},
        {"nothing flows", "status=Discharging|energy_now=4000|power_now=0", "null|BAT0|null|null"},
        {"no numbers and too great ones",
         "status=Discharging|voltage_now=-|capacity=x|energy_now=18446744073709551615|power_now=1",
         "null|BAT0|null|null"},
    };
    for (const auto& each : cases)
        EXPECT_THAT(
            batteries("DesignVoltage, EstimatedChargeRemaining, EstimatedRunTime", each.files),
            ElementsAre(each.row))
            << each.what;
}

} // namespace
} // namespace ostrelum
