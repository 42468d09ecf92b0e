#pragma once

#include "sources/ManagementService.h"

#include <cstdint>
#include <string>

namespace ostrelum {

/// So many KB in bytes, as the service delivers 64-bit numbers.
inline std::string kilobytes(std::int64_t count)
{
    return std::to_string(count * 1024);
}

/// A volume as the service tells it.
inline Instance volume(const Value& size, const Value& free, const Value& name = " Data ",
                       const Value& letter = " E: ", const Value& system = "vfat")
{
    return Instance({{"Caption", letter},
                     {"FileSystem", system},
                     {"FreeSpace", free},
                     {"Name", letter},
                     {"Size", size},
                     {"VolumeName", name},
                     {"VolumeSerialNumber", system.is_null() ? Value() : Value(" 1A2B ")}});
}

} // namespace ostrelum
