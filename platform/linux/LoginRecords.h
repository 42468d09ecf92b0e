#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

/// The binary records of logins. A record that the end cuts off is left out.
namespace ostrelum {

/// What the log of logins (utmp(5)) tells of an account.
struct LoginHistory {
    std::uint32_t logins = 0;
    /// The last one, in seconds since 1970.
    std::optional<std::int64_t> last;
};

/// Bytes of a record of the log: some kinds of processor have a wider clock in it.
inline constexpr std::size_t UtmpBytes = 384;
inline constexpr std::size_t WideUtmpBytes = 400;

LoginHistory login_history(std::span<const std::uint8_t> log, std::size_t record_bytes,
                           std::string_view account);

/// When an account last logged in (the file lastlog, records of 292 bytes by user number), in
/// seconds since 1970. Nothing for never and for a number that the file does not hold.
std::optional<std::int64_t> last_login(std::span<const std::uint8_t> file, std::uint64_t uid);

/// How many failed logins still count against an account (pam_faillock(8), records of 64 bytes).
std::uint32_t failed_logins(std::span<const std::uint8_t> file);

} // namespace ostrelum
