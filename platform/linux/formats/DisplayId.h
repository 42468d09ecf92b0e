#pragma once

#include "platform/linux/formats/EdidTiming.h"
#include "platform/system/Bytes.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace ostrelum::linux_platform {

/// A piece of a section of DisplayID.
struct DisplayIdBlock {
    std::uint8_t kind = 0;
    unsigned revision = 0;
    ByteView content;

    /// Whether read_display_id has a use for it.
    bool has_refresh_rates() const;
};

/// The pieces of a section, which begins with its version. One that is longer than its room ends
/// the walk.
std::vector<DisplayIdBlock> display_id_blocks(ByteView section);

/// What a section of DisplayID says about refresh rates (VESA DisplayID 1.3 and 2.1): the modes of
/// fast built-in panels often stand there alone.
struct DisplayId {
    std::optional<RefreshRange> limits;
    std::vector<EdidTiming> detailed;
    /// Hertz of the modes that are named by a code or a formula.
    std::vector<int> rates;
};

/// Interlaced modes are passed over.
DisplayId read_display_id(ByteView section);

} // namespace ostrelum::linux_platform
