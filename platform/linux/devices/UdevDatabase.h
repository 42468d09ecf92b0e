#pragma once

#include "platform/linux/files/Sysroot.h"
#include "platform/linux/formats/UdevRecord.h"

#include <string>
#include <string_view>

namespace ostrelum::linux_platform {

/// The record of a device in udev's database: "b8:0" and "c13:64" by number, "+pci:0000:00:02.0" by
/// subsystem and name. A device without one has no properties.
inline UdevRecord udev_record(const Sysroot& root, std::string_view device)
{
    constexpr std::size_t longest = std::size_t{1} << 20;
    return UdevRecord(root.read("/run/udev/data/" + std::string(device), longest).value_or(""));
}

} // namespace ostrelum::linux_platform
