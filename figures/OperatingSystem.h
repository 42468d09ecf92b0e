#pragma once

#include "sources/ManagementService.h"

#include <cstdint>
#include <string>

/// The operating system. An empty text is unknown.
namespace ostrelum::inline figures {

enum class MemoryFigures { Total, TotalAndUsed };

/// Asks for the operating system: Datos 1 is its name, 2 its version and build, 3 its service pack,
/// 4 its word size, 5 its serial number, 6 its product key, 7 the code of its language, 8 its
/// owner, 9 its processes, 10 its installation date as the service delivers it. Num1 is the virtual
/// memory in MB; Num2 the part in use, if that is asked for, else 0. Where the service does not
/// tell all of it, what it tells is taken in, and the result is false.
bool read_operating_system(MemoryFigures figures);

/// Virtual memory in whole MB, from TotalVirtualMemorySize. Throws Failure without it.
std::int32_t virtual_memory(const Instance& item);
/// The part of Num1 MB that is not free by FreeVirtualMemory. Throws Failure without it.
std::int32_t virtual_memory_in_use(const Instance& item);

/// Datos 3 as a version, or that there is none.
std::string service_pack();
/// A number of processes, from 1 on.
std::string process_count(const std::string& count);
/// The date and the time in Datos 10. TempStr is its scratch.
std::string install_date();

} // namespace ostrelum::inline figures
