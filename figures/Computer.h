#pragma once

#include <string>

/// The computer as a whole. An empty text is unknown.
namespace ostrelum::inline figures {

/// Asks for the computer: Datos 1 is its maker, 2 its model, 3 its type, 4 whether it starts again
/// after an error, 5 the seconds for which its start waits, 6 its domain or workgroup.
void read_computer();

/// Datos 4 as "On" or "Off".
std::string restart_option();
/// Datos 5 in seconds.
std::string startup_delay();

} // namespace ostrelum::inline figures
