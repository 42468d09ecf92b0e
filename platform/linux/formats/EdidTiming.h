#pragma once

#include <cstdint>
#include <optional>

namespace ostrelum::linux_platform {

/// A mode that the monitor describes in full.
struct EdidTiming {
    /// Pixels.
    int width = 0;
    int height = 0;
    /// Thousandths of a hertz; of an interlaced mode, half pictures.
    int refresh_mHz = 0;
    bool operator==(const EdidTiming&) const = default;
};

/// From the lowest refresh rate to the highest, in hertz.
struct RefreshRange {
    int lowest = 0;
    int highest = 0;
    bool operator==(const RefreshRange&) const = default;
};

/// The mode of a size in pixels, of a pixel clock in thousandths of a hertz, and of as many clocks
/// in two pictures; nothing for one of no size, or slower than one picture or faster than a
/// thousand in a second, which no monitor has.
std::optional<EdidTiming> timing_of(int width, int height, std::int64_t clock_mHz,
                                    std::int64_t clocks_of_two);

/// Limits as a monitor gives them; nothing without a lowest one and where the highest is below it.
std::optional<RefreshRange> limits_of(int lowest, int highest);

} // namespace ostrelum::linux_platform
