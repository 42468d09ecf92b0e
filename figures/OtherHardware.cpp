#include "figures/OtherHardware.h"

#include "figures/PassOver.h"
#include "figures/Slots.h"

namespace ostrelum::inline figures {
namespace {

void read_board()
{
    attempt([] { Datos[1] = mainboard_name(); });
    query("Select Manufacturer, Product from Win32_BaseBoard");
    first(WmiResult, [](const Instance& item) {
        attempt([&] { Datos[2] = trimmed(item["Manufacturer"]); });
        attempt([&] { Datos[3] = trimmed(item["Product"]); });
    });
}

void read_sound_card()
{
    query("Select Name, Manufacturer from Win32_SoundDevice");
    first(WmiResult, [](const Instance& item) {
        attempt([&] { Datos[4] = trimmed(item["Name"]); });
        attempt([&] { Datos[5] = trimmed(item["Manufacturer"]); });
    });
}

/// Some firmware puts the control character U+000E into the name.
std::string battery_name(const Value& name)
{
    std::string text = name.text();
    std::erase(text, '\x0E');
    return trimmed(text);
}

} // namespace

std::string mainboard_name()
{
    const RegValue name =
        ShellObject->RegRead("HKEY_CURRENT_USER\\Software\\Install\\Ostrelum\\Mainboard\\Full");
    return trimmed(std::visit([](const auto& held) { return Value(held); }, name));
}

void read_other_hardware()
{
    clear(Datos, 1, 10);
    read_board();
    read_sound_card();
    query("Select DesignVoltage, DeviceID, EstimatedChargeRemaining, EstimatedRunTime, Name from "
          "Win32_Battery");
    first(WmiResult, [](const Instance& item) {
        attempt([&] { Datos[6] = battery_name(item["Name"]); });
        attempt([&] { Datos[7] = trimmed(item["DeviceID"]); });
        attempt([&] { Datos[8] = trimmed(item["DesignVoltage"]); });
        attempt([&] { Datos[9] = trimmed(item["EstimatedChargeRemaining"]); });
        attempt([&] { Datos[10] = trimmed(item["EstimatedRunTime"]); });
    });
}

} // namespace ostrelum::inline figures
