#pragma once

#include "platform/linux/files/MachineView.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace ostrelum::linux_platform {

/// A line of /etc/passwd (passwd(5)).
struct Account {
    std::string name;
    std::uint64_t uid = 0;
    std::uint64_t gid = 0;
    /// Empty if the file has none.
    std::string full_name;
};

/// The lines that are whole: a name, and numbers for user and group.
std::vector<Account> parse_passwd(std::string_view text);

/// Numbers of the accounts that belong to persons (login.defs(5)).
struct PersonRange {
    std::uint64_t lowest = 1000;
    std::uint64_t highest = 60000;
    bool holds(std::uint64_t uid) const { return uid >= lowest && uid <= highest; }
};

PersonRange person_range(const Sysroot& root);

/// The members of the groups that may administer the machine, by /etc/group (group(5)).
class Administrators {
public:
    explicit Administrators(std::string_view groups);

    bool contains(const Account& account) const;

private:
    std::set<std::uint64_t> groups_;
    std::set<std::string, std::less<>> names_;
};

/// The accounts of root, of persons, and of the user who runs the program, in the order of
/// /etc/passwd; the last of them behind the others if that file does not have it. Directories on
/// the network are not asked for all that they hold: they may not answer.
std::vector<Account> local_accounts(const MachineView& machine);

} // namespace ostrelum::linux_platform
