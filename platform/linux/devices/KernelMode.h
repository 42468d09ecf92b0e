#pragma once

#include "platform/linux/files/SystemCalls.h"

#include <optional>
#include <string>

namespace ostrelum::linux_platform {

/// The mode in which this machine's kernel drives a connector, such as "card0-HDMI-A-1". Nothing
/// for a user who may not open the card, and for a connector that is off. The monitor is not asked:
/// that takes long.
std::optional<DisplayMode> kernel_mode(const std::string& connector);

} // namespace ostrelum::linux_platform
