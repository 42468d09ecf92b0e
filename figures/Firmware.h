#pragma once

#include <string>

/// The firmware of the machine.
namespace ostrelum::inline figures {

/// The slots of Datos that read_firmware fills.
enum class FirmwareSlot {
    Name = 1,
    Manufacturer,
    Version,
    ReleaseDate, ///< a datetime of the service
    SerialNumber,
};

/// Asks for the firmware and reads the first.
void read_firmware();

/// The release date; empty for an empty slot. Throws Failure where the slot holds no date.
std::string release_date();

} // namespace ostrelum::inline figures
