#pragma once

#include <string>

namespace ostrelum::inline figures {

/// The mainboard's full name, which an installer may have stored with the settings. Throws Failure
/// where none did.
std::string mainboard_name();

/// The slots of Datos that read_other_hardware fills.
enum class HardwareSlot {
    BoardFullName = 1,
    BoardManufacturer,
    BoardProduct,
    SoundCardName,
    SoundCardManufacturer,
    BatteryName,
    BatterySerial,
    BatteryVoltage, ///< in millivolts
    BatteryCharge,  ///< in percent
    BatteryMinutes, ///< that it lasts
};

/// Asks for the mainboard, sound devices and batteries and reads the first of each.
void read_other_hardware();

} // namespace ostrelum::inline figures
