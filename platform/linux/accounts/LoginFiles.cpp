#include "platform/linux/accounts/LoginFiles.h"

#include "platform/linux/os/KernelRelease.h"

#include <limits>

namespace ostrelum::linux_platform {
namespace {

/// A log of more bytes is not read.
constexpr std::size_t longest_log = std::size_t{64} << 20;

} // namespace

const LoginFiles::Log& LoginFiles::known(Log& log) const
{
    if (log.tried)
        return log;
    log.tried = true;
    const auto bytes = machine_.root.read(log.path, longest_log);
    const auto kind = kernel_architecture(machine_);
    log.there = bytes.has_value();
    log.record_bytes = utmp_bytes(bytes ? bytes_of(*bytes) : ByteView(),
                                  kind == "aarch64" ? wide_utmp_bytes : usual_utmp_bytes);
    if (bytes)
        log.histories = login_histories(bytes_of(*bytes), log.record_bytes);
    return log;
}

std::optional<std::int64_t> LoginFiles::last(const Account& account)
{
    const auto& histories = known(present_).histories;
    const auto history = histories.find(account.name);
    return history == histories.end() ? last_in_lastlog(account) : history->second.last;
}

/// Reads one record alone: the file has a place for every user number up to the highest, so that it
/// is long with little in it.
std::optional<std::int64_t> LoginFiles::last_in_lastlog(const Account& account)
{
    const std::size_t size = lastlog_bytes(known(present_).record_bytes);
    if (account.uid > std::numeric_limits<std::uint32_t>::max())
        return std::nullopt;
    const auto record = machine_.root.read_piece("/var/log/lastlog", account.uid * size, size);
    return record ? last_login(bytes_of(*record)) : std::nullopt;
}

std::optional<std::uint32_t> LoginFiles::count(const Account& account)
{
    std::optional<std::uint32_t> logins;
    for (Log* each : {&present_, &before_}) {
        const Log& log = known(*each);
        const auto history = log.histories.find(account.name);
        if (log.there)
            logins =
                logins.value_or(0) + (history == log.histories.end() ? 0 : history->second.logins);
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
