#pragma once

#include "platform/masking/KnownIdentities.h"
#include "platform/masking/Pseudonyms.h"

#include <functional>
#include <set>
#include <string>
#include <string_view>

namespace ostrelum::linux_platform {

/// The pseudonyms that one machine has been given.
struct MachinePseudonyms {
    /// Those of the accounts that are shown.
    Pseudonyms accounts;
    /// The names of these accounts.
    std::set<std::string, std::less<>> shown;
    /// Those of folders, volumes and devices.
    Pseudonyms names;
    /// What has been hidden, or left out, for any text may mention it.
    KnownIdentities known;

    bool shows(std::string_view account) const { return shown.contains(account); }
};

} // namespace ostrelum::linux_platform
