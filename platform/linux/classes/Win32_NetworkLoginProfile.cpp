#include "platform/linux/accounts/Accounts.h"
#include "platform/linux/accounts/LoginFiles.h"
#include "platform/linux/classes/Classes.h"
#include "platform/linux/formats/CimDateTime.h"

#include <memory>
#include <vector>

namespace ostrelum::linux_platform {
namespace {

struct Profile {
    const MachineView& machine;
    Account account;
    /// Of these, one for all profiles of a query.
    std::shared_ptr<LoginFiles> files;
    std::shared_ptr<const Administrators> administrators;
};

Value bad_password_count(const Profile& profile)
{
    return value_of(profile.files->failures(profile.account));
}

Value name(const Profile& profile)
{
    return profile.account.name;
}

/// The service is asked for the user's own account alone, so that a query waits only once for a
/// service that does not answer.
std::optional<std::int64_t> last_login_of(const Profile& profile)
{
    if (const auto recorded = profile.files->last(profile.account))
        return recorded;
    const MachineView& machine = profile.machine;
    const bool own = machine.system_calls->user_id() == profile.account.uid;
    return own ? machine.system_calls->login_time(profile.account.uid) : std::nullopt;
}

Value last_logon(const Profile& profile)
{
    const auto moment = last_login_of(profile);
    return moment
               ? value_of(cim_datetime(*moment, profile.machine.system_calls->utc_offset(*moment)))
               : Value();
}

Value number_of_logons(const Profile& profile)
{
    return value_of(profile.files->count(profile.account));
}

Value privileges(const Profile& profile)
{
    constexpr int guest = 0;
    constexpr int user = 1;
    constexpr int administrator = 2;
    if (profile.account.uid == 0 || profile.administrators->contains(profile.account))
        return administrator;
    return profile.account.name.starts_with("guest") ? guest : user;
}

constexpr PropertyRow<Profile> rows[] = {
    {"BadPasswordCount", bad_password_count},
    {"Caption", name},
    {"LastLogon", last_logon},
    {"Name", name},
    {"NumberOfLogons", number_of_logons},
    {"Privileges", privileges},
};

/// In the order of local_accounts().
std::vector<Profile> profiles(const MachineView& machine)
{
    const auto files = std::make_shared<LoginFiles>(machine);
    const auto administrators =
        std::make_shared<const Administrators>(machine.root.read("/etc/group").value_or(""));
    std::vector<Profile> profiles;
    for (Account& account : local_accounts(machine))
        profiles.push_back({machine, std::move(account), files, administrators});
    return profiles;
}

} // namespace

constinit const LinuxClass Win32_NetworkLoginProfile =
    linux_class<rows, profiles>("Win32_NetworkLoginProfile");

} // namespace ostrelum::linux_platform
