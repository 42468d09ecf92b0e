#pragma once

#include "platform/linux/files/Sysroot.h"

#include <optional>
#include <string>

namespace ostrelum::linux_platform {

/// The name of the person whose system it is: of the first account that was made for a person, the
/// full name, else the login name. Nothing if there are only the system's own accounts.
std::optional<std::string> owner_of(const Sysroot& root);

} // namespace ostrelum::linux_platform
