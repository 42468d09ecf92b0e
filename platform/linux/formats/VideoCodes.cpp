#include "platform/linux/formats/VideoCodes.h"

#include <array>

namespace ostrelum::linux_platform {
namespace {

/// From code 1 on.
constexpr std::array<std::uint8_t, 127> low_codes = {
    60,  60,  60,  60,  60,  60,  60,  60,  60,  60,  60,  60,  60,  60,  60,  60,  50,  50,  50,
    50,  50,  50,  50,  50,  50,  50,  50,  50,  50,  50,  50,  24,  25,  30,  60,  60,  50,  50,
    50,  100, 100, 100, 100, 100, 100, 120, 120, 120, 120, 120, 120, 200, 200, 200, 200, 240, 240,
    240, 240, 24,  25,  30,  120, 100, 24,  25,  30,  50,  60,  100, 120, 24,  25,  30,  50,  60,
    100, 120, 24,  25,  30,  50,  60,  100, 120, 24,  25,  30,  50,  60,  100, 120, 24,  25,  30,
    50,  60,  24,  25,  30,  50,  60,  24,  25,  30,  50,  60,  48,  48,  48,  48,  48,  48,  48,
    48,  48,  100, 120, 100, 120, 24,  25,  30,  48,  50,  60,  100};

/// From code 193 on.
constexpr std::uint8_t first_high_code = 193;
constexpr std::array<std::uint8_t, 27> high_codes = {120, 24, 25, 30, 48, 50,  60,  100, 120,
                                                     24,  25, 30, 48, 50, 60,  100, 120, 24,
                                                     25,  30, 48, 50, 60, 100, 120, 100, 120};

} // namespace

std::optional<int> rate_of_video_code(std::uint8_t code)
{
    if (code >= 1 && code <= low_codes.size())
        return low_codes[code - 1U];
    if (code >= first_high_code && code < first_high_code + high_codes.size())
        return high_codes[static_cast<std::size_t>(code - first_high_code)];
    return std::nullopt;
}

} // namespace ostrelum::linux_platform
