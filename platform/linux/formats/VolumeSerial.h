#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ostrelum::linux_platform {

/// Eight digits of a file system's identity: those of FAT, the last of NTFS, the first of UDF and
/// of a UUID. Nothing for any other form. `type` is the name under which users know the file system
/// type: NTFS and UDF have one form.
std::optional<std::string> serial_of_identity(std::string_view identity, std::string_view type);

} // namespace ostrelum::linux_platform
