#pragma once

#include "platform/linux/accounts/Accounts.h"
#include "platform/linux/formats/LoginRecords.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>

namespace ostrelum::linux_platform {

/// What the files of a machine say about logins. A file is read when it is first asked for, the
/// logs once for all accounts.
class LoginFiles {
public:
    explicit LoginFiles(const MachineView& machine) : machine_(machine) {}

    /// The last login in the log or else in lastlog, in seconds since 1970.
    std::optional<std::int64_t> last(const Account& account);

    /// Logins since the log before this one was begun. Nothing without a log.
    std::optional<std::uint32_t> count(const Account& account);

    /// Failed logins that still count. Only the system's own user may count them for others.
    std::optional<std::uint32_t> failures(const Account& account) const;

private:
    struct Log {
        const char* path;
        bool tried = false;
        /// Whether it could be read.
        bool there = false;
        /// Width of its records in bytes.
        std::size_t record_bytes = 0;
        std::map<std::string, LoginHistory, std::less<>> histories = {};
    };
    const Log& known(Log& log) const;
    std::optional<std::int64_t> last_in_lastlog(const Account& account);

    const MachineView& machine_;
    Log present_{"/var/log/wtmp"};
    Log before_{"/var/log/wtmp.1"};
};

} // namespace ostrelum::linux_platform
