#include "platform/linux/accounts/Owner.h"

#include "platform/linux/accounts/Accounts.h"

namespace ostrelum::linux_platform {

std::optional<std::string> owner_of(const Sysroot& root)
{
    const PersonRange persons = person_range(root);
    std::optional<Account> first;
    for (const Account& account : parse_passwd(root.read("/etc/passwd").value_or(""))) {
        if (persons.holds(account.uid) && (!first || account.uid < first->uid))
            first = account;
    }
    if (!first)
        return std::nullopt;
    return first->full_name.empty() ? first->name : first->full_name;
}

} // namespace ostrelum::linux_platform
