#include "platform/linux/accounts/LoginFiles.h"

#include "platform/linux/formats/LoginRecords.h"
#include "platform/linux/os/KernelRelease.h"

#include <limits>

namespace ostrelum::linux_platform {
namespace {

/// A log of more bytes is not read.
constexpr std::size_t longest_log = std::size_t{64} << 20;

} // namespace

const std::optional<std::string>& LoginFiles::content_of(Log& log)
{
    if (!log.tried)
        log.bytes = machine_.root.read(log.path, longest_log);
    log.tried = true;
    return log.bytes;
}

std::size_t LoginFiles::record_bytes(const std::optional<std::string>& log) const
{
    const auto kind = kernel_architecture(machine_);
    return utmp_bytes(bytes_of(log.value_or("")),
                      kind == "aarch64" ? wide_utmp_bytes : usual_utmp_bytes);
}

std::optional<std::int64_t> LoginFiles::last(const Account& account)
{
    if (const auto& log = content_of(present_)) {
        const auto history = login_history(bytes_of(*log), record_bytes(log), account.name);
        if (history.last)
            return history.last;
    }
    return last_in_lastlog(account);
}

/// Reads one record alone: the file has a place for every user number up to the highest, so that it
/// is long with little in it.
std::optional<std::int64_t> LoginFiles::last_in_lastlog(const Account& account)
{
    const std::size_t size = lastlog_bytes(record_bytes(content_of(present_)));
    if (account.uid > std::numeric_limits<std::uint32_t>::max())
        return std::nullopt;
    const auto record = machine_.root.read_piece("/var/log/lastlog", account.uid * size, size);
    return record ? last_login(bytes_of(*record)) : std::nullopt;
}

std::optional<std::uint32_t> LoginFiles::count(const Account& account)
{
    std::optional<std::uint32_t> logins;
    for (Log* each : {&present_, &before_}) {
        if (const auto& log = content_of(*each))
            logins = logins.value_or(0) +
                     login_history(bytes_of(*log), record_bytes(log), account.name).logins;
    }
    return logins;
}

std::optional<std::uint32_t> LoginFiles::failures(const Account& account) const
{
    if (account.name.find('/') != std::string::npos)
        return std::nullopt;
    const auto file = machine_.root.read("/run/faillock/" + account.name);
    return file ? std::optional(failed_logins(bytes_of(*file))) : std::nullopt;
}

} // namespace ostrelum::linux_platform
