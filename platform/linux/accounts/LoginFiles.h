#pragma once

#include "platform/linux/accounts/Accounts.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace ostrelum::linux_platform {

/// What the files of a machine say about logins. A file is read when it is first asked for, and the
/// logs are kept as long as the object: they are the same for every account.
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
        std::optional<std::string> bytes = {};
    };
    const std::optional<std::string>& content_of(Log& log);
    std::size_t record_bytes(const std::optional<std::string>& log) const;
    std::optional<std::int64_t> last_in_lastlog(const Account& account);

    const MachineView& machine_;
    Log present_{"/var/log/wtmp"};
    Log before_{"/var/log/wtmp.1"};
};

} // namespace ostrelum::linux_platform
