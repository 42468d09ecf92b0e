#pragma once

#include <cstdint>
#include <optional>

namespace ostrelum::linux_platform {

/// Pictures per second, half pictures where it is interlaced, of the mode with that code
/// (CTA-861-I, table 1); nothing for a code without a mode.
std::optional<int> rate_of_video_code(std::uint8_t code);

} // namespace ostrelum::linux_platform
