#pragma once

#include "platform/linux/files/SystemCalls.h"

#include <cstdint>
#include <optional>

namespace ostrelum::linux_platform {

/// What the ages in the password file mean for today: all in days, `last_change` and `today` since
/// 1970. A longest age of 99999 and more, or below 0, means none (shadow(5)).
PasswordPolicy policy_of_ages(std::int64_t last_change, std::int64_t shortest, std::int64_t longest,
                              std::int64_t today);

/// The policy of an account of this machine by the accounts service on the system bus.
/// Nothing where there is no bus or no such service, where all its answers together take more than
/// half a second, and where it asks the user to authenticate first.
std::optional<PasswordPolicy> password_policy(std::uint64_t uid);

/// When an account last logged in, in seconds since 1970, by the same service. Nothing where it
/// does not answer, and for never.
std::optional<std::int64_t> login_time(std::uint64_t uid);

} // namespace ostrelum::linux_platform
