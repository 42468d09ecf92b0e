#pragma once

#include "platform/linux/files/SystemCalls.h"

#include <memory>

namespace ostrelum {

/// Asks the system that the program runs on.
std::unique_ptr<SystemCalls> live_system_calls();

} // namespace ostrelum
