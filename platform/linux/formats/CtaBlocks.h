#pragma once

#include "platform/system/Bytes.h"

#include <vector>

namespace ostrelum::linux_platform {

/// Hertz of the modes, half pictures where they are interlaced, that a collection of data blocks
/// names by their codes (CTA-861-I, section 7.4; HDMI 1.4b, section 8.3.2). A block that is longer
/// than its room ends there.
std::vector<int> rates_of_data_blocks(ByteView blocks);

} // namespace ostrelum::linux_platform
