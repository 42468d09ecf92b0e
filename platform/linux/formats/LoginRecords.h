#pragma once

#include "platform/system/Bytes.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

/// The binary records of logins. A record that the end cuts off is left out.
namespace ostrelum::linux_platform {

/// What the log of logins (utmp(5)) says about an account.
struct LoginHistory {
    std::uint32_t logins = 0;
    /// The last one, in seconds since 1970.
    std::optional<std::int64_t> last;
};

/// Bytes of a record of the log: some kinds of processor have a wider clock in it.
inline constexpr std::size_t usual_utmp_bytes = 384;
inline constexpr std::size_t wide_utmp_bytes = 400;

/// The width of a log's records: the one by which more of them are of a known type. It does not
/// follow from the kernel: a system of 32 bits may run on a kernel of 64. `otherwise` where it does
/// not follow from the log either.
std::size_t utmp_bytes(ByteView log, std::size_t otherwise);

/// What a log of records of that width says, by account.
std::map<std::string, LoginHistory, std::less<>> login_histories(ByteView log,
                                                                 std::size_t record_bytes);

/// Bytes of a record of the file lastlog, which stand by user number, beside each width of the log.
constexpr std::size_t lastlog_bytes(std::size_t record_bytes)
{
    return record_bytes == wide_utmp_bytes ? 296 : 292;
}

/// When an account last logged in, by its whole record of lastlog: in seconds since 1970. Nothing
/// for never.
std::optional<std::int64_t> last_login(ByteView record);

/// How many failed logins still count against an account (pam_faillock(8), records of 64 bytes).
std::uint32_t failed_logins(ByteView file);

} // namespace ostrelum::linux_platform
