#pragma once

#include "platform/linux/files/Sysroot.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ostrelum::linux_platform {

/// The optical drives by the kernel's names, "sr0" first.
std::vector<std::string> optical_drives(const Sysroot& root);

/// Size in bytes of the disc in a drive; nothing for an empty drive. The drive itself is not asked:
/// that would load it.
std::optional<std::uint64_t> disc_bytes(const Sysroot& root, const std::string& drive);

} // namespace ostrelum::linux_platform
