#pragma once

#include "platform/linux/files/Sysroot.h"
#include "platform/linux/files/SystemCalls.h"
#include "platform/system/Screens.h"

#include <memory>

namespace ostrelum::linux_platform {

/// The machine that the classes tell of: this one or a recorded one.
struct MachineView {
    Sysroot root;
    std::unique_ptr<SystemCalls> system_calls;
    /// Empty without a desktop session.
    SessionFactsSource session;
};

} // namespace ostrelum::linux_platform
