#pragma once

#include <string>

/// The computer as a whole. An empty text is unknown.
namespace ostrelum::inline figures {

/// The slots of Datos that read_computer fills.
enum class ComputerSlot {
    Manufacturer = 1,
    Model,
    Type,
    RestartsAfterError, ///< a truth value
    StartupDelay,       ///< in seconds
    Domain,             ///< or workgroup
};

void read_computer();

/// Whether it starts again after an error, as "On" or "Off".
std::string restart_option();
/// How long its start waits, with the unit.
std::string startup_delay();

} // namespace ostrelum::inline figures
