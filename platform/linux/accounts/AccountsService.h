#pragma once

#include "platform/linux/files/SystemCalls.h"

#include <cstdint>
#include <optional>

namespace ostrelum::linux_platform {

/// What the password file's ages mean on a day: all in days, `last_change` and `today` since 1970.
/// A longest age of 99999 and more, or below 0, means none (shadow(5)).
PasswordPolicy policy_of_ages(std::int64_t last_change, std::int64_t shortest, std::int64_t longest,
                              std::int64_t today);

/// The policy of an account of this machine as the accounts service on the system bus tells it.
/// Nothing where there is no bus or no such service, where all its answers together take more than
/// half a second, and where it wants a proof of identity first.
std::optional<PasswordPolicy> password_policy(std::uint64_t uid);

/// When an account last logged in, in seconds since 1970, as the same service tells it. Nothing
/// where it does not, and for never.
std::optional<std::int64_t> login_time(std::uint64_t uid);

} // namespace ostrelum::linux_platform
