#pragma once

#include <string>

/// The memory modules of the machine, and what the rows about them say. An empty text is unknown.
namespace ostrelum::inline figures {

/// Asks for the modules and takes all of them in: Datos 1 their type, 2 their form factor and 4
/// their width in bits, each of the last module that tells it; Datos 3 how many there are, and Num1
/// their total in KB.
void read_memory_modules();

/// Num1 as a size.
std::string total_memory();
/// Datos 3, unless it is 0.
std::string modules_installed();
/// Datos 4 with its unit.
std::string memory_width();
/// What the system favours by LargeSystemCache, which is in Datos 5.
std::string favoured_use();

} // namespace ostrelum::inline figures
