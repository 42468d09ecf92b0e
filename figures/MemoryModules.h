#pragma once

#include <string>

/// The memory modules of the machine, and what the rows about them say. An empty text is unknown.
namespace ostrelum::inline figures {

/// The slots of Datos about the memory.
enum class MemorySlot {
    Type = 1,   ///< a code
    FormFactor, ///< a code
    ModuleCount,
    Width,       ///< in bits
    FavouredUse, ///< LargeSystemCache; read_memory_modules leaves it empty
};

/// Asks for the modules and reads all of them: type, form factor and width are those of the last
/// module that has them. Num1 is their total in KB.
void read_memory_modules();

/// Num1 as a size.
std::string total_memory();
/// How many modules there are, unless it is 0.
std::string modules_installed();
/// The width with its unit.
std::string memory_width();
/// Whether the system favours applications or its cache.
std::string favoured_use();

} // namespace ostrelum::inline figures
