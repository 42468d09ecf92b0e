#pragma once

#include <string>

namespace ostrelum::inline figures {

/// The mainboard's full name as whoever installed the program left it with the settings. Throws
/// Failure where nobody did.
std::string mainboard_name();

/// Takes in the mainboard, the first sound device and the first battery: Datos 1 the board's full
/// name, 2 and 3 its maker and product; 4 and 5 the name and the maker of the sound device; 6 and 7
/// the battery's name and serial number, 8 its voltage in millivolts, 9 its charge in percent and
/// 10 the minutes that it lasts.
void read_other_hardware();

} // namespace ostrelum::inline figures
