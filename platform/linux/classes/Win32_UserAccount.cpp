#include "platform/linux/accounts/Accounts.h"
#include "platform/linux/classes/Classes.h"

#include <vector>

namespace ostrelum::linux_platform {
namespace {

struct LocalAccount {
    const MachineView& machine;
    Account account;
    /// Asked for once for all properties.
    mutable std::optional<std::optional<PasswordPolicy>> policy = {};
};

/// UF_NORMAL_ACCOUNT: the machine knows no other kind.
Value account_type(const LocalAccount&)
{
    return 512;
}

Value domain(const LocalAccount& local)
{
    return value_of(local.machine.root.text("/proc/sys/kernel/hostname"));
}

Value name(const LocalAccount& local)
{
    return local.account.name;
}

/// The rules for the password of the user's own account; those of others are not known.
std::optional<PasswordPolicy> policy(const LocalAccount& local)
{
    if (!local.policy) {
        const bool own = local.machine.system_calls->user_id() == local.account.uid;
        local.policy =
            own ? local.machine.system_calls->password_policy(local.account.uid) : std::nullopt;
    }
    return *local.policy;
}

Value password_changeable(const LocalAccount& local)
{
    const auto rules = policy(local);
    return rules ? Value(rules->changeable) : Value();
}

Value password_expires(const LocalAccount& local)
{
    const auto rules = policy(local);
    return rules ? Value(rules->expires) : Value();
}

constexpr PropertyRow<LocalAccount> rows[] = {
    {"AccountType", account_type},
    {"Caption", name},
    {"Domain", domain},
    {"Name", name},
    {"PasswordChangeable", password_changeable},
    {"PasswordExpires", password_expires},
};

/// In the order of local_accounts().
std::vector<LocalAccount> accounts(const MachineView& machine)
{
    std::vector<LocalAccount> accounts;
    for (Account& account : local_accounts(machine))
        accounts.push_back({machine, std::move(account)});
    return accounts;
}

} // namespace

constinit const LinuxClass Win32_UserAccount = linux_class<rows, accounts>("Win32_UserAccount");

} // namespace ostrelum::linux_platform
