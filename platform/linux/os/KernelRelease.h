#pragma once

#include "platform/linux/files/MachineView.h"

#include <optional>
#include <string>
#include <string_view>

namespace ostrelum::linux_platform {

/// The kernel's name for the kind of processor, such as "x86_64".
std::optional<std::string> kernel_architecture(const MachineView& machine);

/// The text of a kernel's release that pages show: they keep its first three and its last four
/// characters, so it is written to survive that. "6.1.0-28-amd64" gives "6.1.0-28", "6.18.44" gives
/// "6.x 6.18". Nothing for text that does not begin with two numbers.
std::optional<std::string> kernel_version_text(std::string_view release);

} // namespace ostrelum::linux_platform
