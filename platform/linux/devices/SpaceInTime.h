#pragma once

#include "platform/linux/files/SystemCalls.h"

#include <optional>
#include <string>

namespace ostrelum::linux_platform {

/// The space of the volume of this machine that holds a path. One that does not answer within two
/// seconds has none, and is not asked again while its answer is outstanding; others are meanwhile
/// given a tenth of a second.
std::optional<VolumeSpace> space_in_time(const std::string& path);

} // namespace ostrelum::linux_platform
