#include "platform/linux/accounts/Accounts.h"

#include "platform/linux/text/Text.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace ostrelum::linux_platform {
namespace {

/// The fields between colons; missing ones are empty.
template <std::size_t Count>
std::array<std::string_view, Count> fields_of(std::string_view line)
{
    std::array<std::string_view, Count> fields;
    for (std::string_view& field : fields) {
        const auto colon = line.find(':');
        field = line.substr(0, colon);
        line.remove_prefix(colon == line.npos ? line.size() : colon + 1);
    }
    return fields;
}

std::uint64_t defined(std::string_view definitions, std::string_view key, std::uint64_t fallback)
{
    for (const std::string_view line : lines_of(definitions)) {
        // Most lines of the file are comments.
        if (line.find(key) == line.npos)
            continue;
        const auto words = words_of(line);
        if (words.size() >= 2 && words[0] == key)
            return whole_number(words[1]).value_or(fallback);
    }
    return fallback;
}

} // namespace

std::vector<Account> parse_passwd(std::string_view text)
{
    std::vector<Account> accounts;
    for (const std::string_view line : lines_of(text)) {
        const auto fields = fields_of<7>(line);
        const auto name = text_or_none(fields[0]);
        const auto uid = whole_number(fields[2]);
        const auto gid = whole_number(fields[3]);
        const auto full_name = text_or_none(fields[4].substr(0, fields[4].find(',')));
        if (name && uid && gid)
            accounts.push_back({*name, *uid, *gid, full_name.value_or("")});
    }
    return accounts;
}

PersonRange person_range(const Sysroot& root)
{
    const std::string definitions = root.read("/etc/login.defs").value_or("");
    return {defined(definitions, "UID_MIN", PersonRange().lowest),
            defined(definitions, "UID_MAX", PersonRange().highest)};
}

Administrators::Administrators(std::string_view groups)
{
    constexpr std::array<std::string_view, 3> administrators{"admin", "sudo", "wheel"};
    for (const std::string_view line : lines_of(groups)) {
        const auto fields = fields_of<4>(line);
        if (std::ranges::find(administrators, fields[0]) == administrators.end())
            continue;
        if (const auto number = whole_number(fields[2]))
            groups_.insert(*number);
        for (std::string_view members = fields[3]; !members.empty();) {
            const std::string_view member = members.substr(0, members.find(','));
            names_.emplace(trimmed_space(member));
            members.remove_prefix(std::min(member.size() + 1, members.size()));
        }
    }
}

bool Administrators::contains(const Account& account) const
{
    return groups_.contains(account.gid) || names_.contains(account.name);
}

std::vector<Account> local_accounts(const MachineView& machine)
{
    const PersonRange persons = person_range(machine.root);
    const auto own = machine.system_calls->user_id();
    std::vector<Account> accounts = parse_passwd(machine.root.read("/etc/passwd").value_or(""));
    std::erase_if(accounts, [&](const Account& account) {
        return account.uid != 0 && !persons.holds(account.uid) && account.uid != own;
    });
    if (own && std::ranges::find(accounts, *own, &Account::uid) == accounts.end()) {
        const auto line = machine.system_calls->directory_account(*own);
        std::ranges::move(parse_passwd(line.value_or("")), std::back_inserter(accounts));
    }
    return accounts;
}

} // namespace ostrelum::linux_platform
