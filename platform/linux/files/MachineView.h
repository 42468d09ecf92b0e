#pragma once

#include "platform/linux/files/Sysroot.h"
#include "platform/linux/files/SystemCalls.h"
#include "platform/system/Screens.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ostrelum::linux_platform {

/// What is shown in place of identities that are to be kept from others or are too long to show:
/// of an installation's machine id, and of the identity of a file system of a type. Nothing for a
/// text that is no identity.
struct IdentityRules {
    std::optional<std::string> (*installation)(std::string_view machine_id);
    std::optional<std::string> (*volume)(std::string_view identity, std::string_view type);
};

/// A process that was there when they were last counted.
struct SeenProcess {
    std::uint64_t number = 0;
    bool kernel_thread = false;
    /// It was that twice in a row. One that was so once may have been about to become a program.
    bool for_good = false;
};

/// The machine that the classes describe: this one or a recorded one.
struct MachineView {
    Sysroot root;
    std::unique_ptr<SystemCalls> system_calls;
    /// Empty without a desktop session.
    SessionFactsSource session;
    IdentityRules identities;
    /// By number, so that the next count asks about new ones alone. The kernel gives a number anew
    /// when all others have been given out.
    mutable std::vector<SeenProcess> processes = {};
};

} // namespace ostrelum::linux_platform
