#pragma once

#include "platform/linux/files/Sysroot.h"

#include <string>

namespace ostrelum::linux_platform {

/// The firmware's table of the machine (Smbios.h), which root alone may read; empty where it cannot
/// be had.
inline std::string firmware_table(const Sysroot& root)
{
    return root.read("/sys/firmware/dmi/tables/DMI").value_or("");
}

} // namespace ostrelum::linux_platform
