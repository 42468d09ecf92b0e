#pragma once

#include "platform/linux/files/SystemCalls.h"

#include <memory>

namespace ostrelum::linux_platform {

/// Asks the system that the program runs on.
std::unique_ptr<SystemCalls> live_system_calls();

} // namespace ostrelum::linux_platform
