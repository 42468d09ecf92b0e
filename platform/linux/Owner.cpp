#include "platform/linux/Owner.h"

#include "platform/linux/Text.h"

#include <array>
#include <cstdint>

namespace ostrelum {
namespace {

/// The fields of a line of /etc/passwd (passwd(5)); missing ones are empty.
std::array<std::string_view, 7> fields_of(std::string_view line)
{
    std::array<std::string_view, 7> fields;
    for (std::string_view& field : fields) {
        const auto colon = line.find(':');
        field = line.substr(0, colon);
        if (colon == line.npos)
            break;
        line.remove_prefix(colon + 1);
    }
    return fields;
}

/// The number that /etc/login.defs gives a key.
std::uint64_t limit(std::string_view definitions, std::string_view key, std::uint64_t fallback)
{
    for (const std::string_view line : lines_of(definitions)) {
        const auto words = words_of(line);
        if (words.size() >= 2 && words[0] == key)
            return whole_number(words[1]).value_or(fallback);
    }
    return fallback;
}

} // namespace

std::optional<std::string> owner_of(const Sysroot& root)
{
    const std::string definitions = root.read("/etc/login.defs").value_or("");
    const std::uint64_t lowest = limit(definitions, "UID_MIN", 1000);
    std::uint64_t best = limit(definitions, "UID_MAX", 60000) + 1;
    std::optional<std::string> owner;
    for (const std::string_view line : lines_of(root.read("/etc/passwd").value_or(""))) {
        const auto fields = fields_of(line);
        const auto uid = whole_number(fields[2]);
        if (!uid || *uid < lowest || *uid >= best)
            continue;
        const auto full_name = text_or_none(fields[4].substr(0, fields[4].find(',')));
        owner = full_name ? full_name : text_or_none(fields[0]);
        best = *uid;
    }
    return owner;
}

} // namespace ostrelum
