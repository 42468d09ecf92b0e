#pragma once

#include "platform/linux/files/AccessObserver.h"
#include "platform/linux/files/SystemCalls.h"

#include <memory>

namespace ostrelum::linux_platform {

/// Passes the calls on, and each answer to an observer too, in the form that a recorded machine
/// keeps.
std::unique_ptr<SystemCalls> observed_system_calls(std::unique_ptr<SystemCalls> calls,
                                                   std::shared_ptr<AccessObserver> observer);

} // namespace ostrelum::linux_platform
