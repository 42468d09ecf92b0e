#pragma once

#include <string>

/// The firmware of the machine.
namespace ostrelum::inline figures {

/// Asks for the firmware and takes in the first: Datos 1 its name, 2 its maker, 3 its version, 4
/// its release date as the service delivers it, 5 its serial number.
void read_firmware();

/// Datos 4 as a date; empty for an empty slot. Throws Failure where it holds no date.
std::string release_date();

} // namespace ostrelum::inline figures
