#include "platform/linux/Accounts.h"
#include "platform/linux/CimDateTime.h"
#include "platform/linux/Classes.h"
#include "platform/linux/KernelFacts.h"
#include "platform/linux/LoginRecords.h"

#include <array>
#include <vector>

namespace ostrelum {
namespace {

struct Profile {
    const MachineView& machine;
    Account account;
};

std::span<const std::uint8_t> bytes_of(const std::string& text)
{
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

/// A log of logins may be large; only so much of it is read.
constexpr std::size_t LongestLog = std::size_t{64} << 20;

std::optional<LoginHistory> history_in(const Profile& profile, const char* path)
{
    const auto log = profile.machine.root.read(path, LongestLog);
    if (!log)
        return std::nullopt;
    const std::string kind = kernel_architecture(profile.machine).value_or("");
    const bool wide = kind == "aarch64" || kind == "riscv64" || kind == "loongarch64";
    return login_history(bytes_of(*log), wide ? WideUtmpBytes : UtmpBytes, profile.account.name);
}

/// Only the system's own user may count them for others.
Value bad_password_count(const Profile& profile)
{
    const auto file = profile.machine.root.read("/run/faillock/" + profile.account.name);
    return file ? Value(failed_logins(bytes_of(*file))) : Value();
}

Value name(const Profile& profile)
{
    return profile.account.name;
}

Value datetime(const Profile& profile, std::int64_t seconds)
{
    return value_of(cim_datetime(seconds, profile.machine.facts->utc_offset(seconds)));
}

Value last_logon(const Profile& profile)
{
    const auto history = history_in(profile, "/var/log/wtmp");
    if (history && history->last)
        return datetime(profile, *history->last);
    const auto file = profile.machine.root.read("/var/log/lastlog", LongestLog);
    const auto last = file ? last_login(bytes_of(*file), profile.account.uid) : std::nullopt;
    return last ? datetime(profile, *last) : Value();
}

/// Since the log before this one was begun.
Value number_of_logons(const Profile& profile)
{
    std::optional<std::uint32_t> logons;
    for (const char* path : {"/var/log/wtmp", "/var/log/wtmp.1"}) {
        if (const auto history = history_in(profile, path))
            logons = logons.value_or(0) + history->logins;
    }
    return value_of(logons);
}

Value privileges(const Profile& profile)
{
    constexpr int Guest = 0;
    constexpr int User = 1;
    constexpr int Administrator = 2;
    const std::string groups = profile.machine.root.read("/etc/group").value_or("");
    if (profile.account.uid == 0 || administers(groups, profile.account))
        return Administrator;
    return profile.account.name.starts_with("guest") ? Guest : User;
}

constexpr PropertyRow<Profile> rows[] = {
    {"BadPasswordCount", bad_password_count},
    {"Caption", name},
    {"LastLogon", last_logon},
    {"Name", name},
    {"NumberOfLogons", number_of_logons},
    {"Privileges", privileges},
};

/// In the order of /etc/passwd.
std::vector<Profile> profiles(const MachineView& machine)
{
    std::vector<Profile> profiles;
    for (Account& account : local_accounts(machine))
        profiles.push_back({machine, std::move(account)});
    return profiles;
}

} // namespace

constinit const LinuxClass Win32_NetworkLoginProfile =
    linux_class<rows, profiles>("Win32_NetworkLoginProfile");

} // namespace ostrelum
