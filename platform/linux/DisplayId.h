#pragma once

#include "platform/linux/EdidTiming.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace ostrelum {

/// What a section of DisplayID tells of refresh rates (VESA DisplayID 1.3 and 2.1): the modes of
/// fast built-in panels often stand there alone.
struct DisplayId {
    std::optional<RefreshLimits> limits;
    std::vector<EdidTiming> detailed;
    /// Hertz of the modes that are named by a code or a formula.
    std::vector<int> rates;
};

/// Reads the section from its version on. A data block that is longer than its room ends the walk;
/// interlaced modes are passed over.
DisplayId read_display_id(std::span<const std::uint8_t> section);

} // namespace ostrelum
