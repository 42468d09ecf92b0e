#pragma once

#include "sources/ManagementService.h"

#include <cstdint>
#include <string>

/// The operating system. An empty text is unknown.
namespace ostrelum::inline figures {

/// The slots of Datos that read_operating_system fills.
enum class SystemSlot {
    Name = 1,
    Version, ///< and build
    ServicePack,
    Architecture, ///< the word size
    SerialNumber,
    ProductKey,
    Language, ///< a code
    RegisteredUser,
    ProcessCount,
    InstallDate, ///< a datetime of the service
};

enum class MemoryFigures { Total, TotalAndUsed };

/// Asks for the operating system. Num1 is the virtual memory in MB; Num2 the part in use, if that
/// is asked for, else 0. False if the query or a property failed; what could be read is
/// there all the same.
bool read_operating_system(MemoryFigures figures);

/// Virtual memory in whole MB, from TotalVirtualMemorySize. Throws Failure without it.
std::int32_t virtual_memory(const Instance& item);
/// The part of Num1 MB that is not free by FreeVirtualMemory. Throws Failure without it.
std::int32_t virtual_memory_in_use(const Instance& item);

/// The version of the service pack, or that there is none.
std::string service_pack();
/// A number of processes, from 1 on.
std::string process_count(const std::string& count);
/// The date and the time of the installation. TempStr is its scratch.
std::string install_date();

} // namespace ostrelum::inline figures
