#include "fuzz/Target.h"
#include "platform/linux/accounts/Accounts.h"
#include "platform/linux/recording/MaskedRecording.h"
#include "platform/masking/Pseudonyms.h"

#include <utility>
#include <vector>

using namespace ostrelum;
using namespace ostrelum::linux_platform;

namespace {

/// The members of the groups in group(5).
std::vector<std::string> members(std::string_view groups)
{
    std::vector<std::string> found;
    while (!groups.empty()) {
        const std::string_view line = groups.substr(0, groups.find('\n'));
        groups.remove_prefix(std::min(line.size() + 1, groups.size()));
        std::string name;
        for (const char c : std::string(line.substr(line.rfind(':') + 1)) + ",") {
            if (c == ',')
                found.push_back(std::exchange(name, ""));
            else
                name += c;
        }
    }
    return found;
}

} // namespace

/// Any bytes as passwd(5) and, behind an empty line, group(5): names are clean; masked, each
/// account that is shown is still there with its numbers and rights, and no name but pseudonyms.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(data, data + size);
    const auto end = std::min(text.find("\n\n"), text.size());
    const std::string passwd = text.substr(0, end), group = text.substr(end);
    const std::vector<Account> accounts = parse_passwd(passwd);
    std::vector<std::string> names;
    for (const Account& account : accounts) {
        if (is_pseudonym(account.name))
            return 0; // stays what it is, and may be another's
        require_clean(account.name);
        require(is_clean_line(account.full_name));
        names.push_back(account.name);
    }
    Recording machine;
    add_file(machine, "/etc/passwd", passwd);
    add_file(machine, "/etc/group", group);
    const Recording hidden = masked_recording(machine, names);
    const auto masked = parse_passwd(content_at(hidden, "/etc/passwd"));
    const std::string groups = content_at(hidden, "/etc/group");
    for (const std::string& member : members(groups))
        require(is_pseudonym(member) || std::ranges::find(names, member) == names.end());
    require(masked.size() == accounts.size());
    for (std::size_t i = 0; i < masked.size(); ++i) {
        const Account &was = accounts[i], &is = masked[i];
        require(is.uid == was.uid && is.gid == was.gid && is_pseudonym(is.name));
        require(was.full_name.empty() ? is.full_name.empty() : is_pseudonym(is.full_name));
        require(Administrators(groups).contains(is) == Administrators(group).contains(was));
    }
    return 0;
}
