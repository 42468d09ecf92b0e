#include "platform/linux/formats/EdidTiming.h"

namespace ostrelum::linux_platform {

std::optional<EdidTiming> timing_of(int width, int height, std::int64_t clock_mHz,
                                    std::int64_t clocks_of_two)
{
    constexpr std::int64_t slowest_mHz = 1'000;
    constexpr std::int64_t fastest_mHz = 1'000'000;
    if (width <= 0 || height <= 0 || clocks_of_two <= 0)
        return std::nullopt;
    const std::int64_t rate = (2 * clock_mHz + clocks_of_two / 2) / clocks_of_two;
    if (rate < slowest_mHz || rate > fastest_mHz)
        return std::nullopt;
    return EdidTiming{width, height, static_cast<int>(rate)};
}

std::optional<RefreshRange> limits_of(int lowest, int highest)
{
    if (lowest <= 0 || lowest > highest)
        return std::nullopt;
    return RefreshRange{lowest, highest};
}

} // namespace ostrelum::linux_platform
