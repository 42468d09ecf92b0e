#include "figures/OtherHardware.h"

#include "figures/PassOver.h"
#include "figures/Slots.h"

namespace ostrelum::inline figures {
namespace {

using Slot = HardwareSlot;

void read_board()
{
    attempt([] { Datos[Slot::BoardFullName] = mainboard_name(); });
    query("Select Manufacturer, Product from Win32_BaseBoard");
    first(WmiResult, [](const Instance& item) {
        attempt([&] { Datos[Slot::BoardManufacturer] = trimmed(item["Manufacturer"]); });
        attempt([&] { Datos[Slot::BoardProduct] = trimmed(item["Product"]); });
    });
}

void read_sound_card()
{
    query("Select Name, Manufacturer from Win32_SoundDevice");
    first(WmiResult, [](const Instance& item) {
        attempt([&] { Datos[Slot::SoundCardName] = trimmed(item["Name"]); });
        attempt([&] { Datos[Slot::SoundCardManufacturer] = trimmed(item["Manufacturer"]); });
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
    clear(Datos, Slot::BoardFullName, Slot::BatteryMinutes);
    read_board();
    read_sound_card();
    query("Select DesignVoltage, DeviceID, EstimatedChargeRemaining, EstimatedRunTime, Name from "
          "Win32_Battery");
    first(WmiResult, [](const Instance& item) {
        attempt([&] { Datos[Slot::BatteryName] = battery_name(item["Name"]); });
        attempt([&] { Datos[Slot::BatterySerial] = trimmed(item["DeviceID"]); });
        attempt([&] { Datos[Slot::BatteryVoltage] = trimmed(item["DesignVoltage"]); });
        attempt([&] { Datos[Slot::BatteryCharge] = trimmed(item["EstimatedChargeRemaining"]); });
        attempt([&] { Datos[Slot::BatteryMinutes] = trimmed(item["EstimatedRunTime"]); });
    });
}

} // namespace ostrelum::inline figures
