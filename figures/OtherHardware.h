#pragma once

#include <string>

namespace ostrelum::inline figures {

/// The mainboard's full name as whoever installed the program left it with the settings. Throws
/// Failure where nobody did.
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

/// Takes in the mainboard, the first sound device and the first battery.
void read_other_hardware();

} // namespace ostrelum::inline figures
