#include "platform/linux/formats/Mounts.h"

#include "platform/linux/text/Text.h"
#include "sources/Utf8.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string_view>

namespace ostrelum::linux_platform {
namespace {

/// Takes what stands before the next blank. Two blanks in a row have an empty field between them:
/// a file system may have been mounted from nothing.
std::string_view take_field(std::string_view& rest)
{
    const std::size_t end = std::min(rest.find(' '), rest.size());
    const std::string_view field = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    return field;
}

std::optional<int> small_number(std::string_view field)
{
    int number = 0;
    const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), number);
    const bool whole = error == std::errc() && end == field.data() + field.size();
    return whole && number >= 0 ? std::optional(number) : std::nullopt;
}

bool is_octal(char sign)
{
    return sign >= '0' && sign <= '7';
}

/// The kernel writes a blank as "\040", and so all that ends a field or a line.
std::string unescaped(std::string_view field)
{
    std::string text;
    for (; !field.empty(); field.remove_prefix(1)) {
        const bool escape = field.size() > 3 && field[0] == '\\' && field[1] <= '3' &&
                            std::all_of(field.begin() + 1, field.begin() + 4, is_octal);
        const int code =
            escape ? (field[1] - '0') * 64 + (field[2] - '0') * 8 + (field[3] - '0') : 0;
        text += code == 0 ? field[0] : static_cast<char>(code);
        field.remove_prefix(code == 0 ? 0 : 3);
    }
    return made_valid_utf8(text);
}

/// "major:minor" with both of them numbers; empty for any other text, and for the number that no
/// device has.
std::string device_of(std::string_view field)
{
    const std::size_t colon = std::min(field.find(':'), field.size());
    const auto major = small_number(field.substr(0, colon));
    const auto minor = small_number(field.substr(std::min(colon + 1, field.size())));
    if (!major || !minor || (*major == 0 && *minor == 0))
        return "";
    return std::to_string(*major) + ":" + std::to_string(*minor);
}

/// "ID PARENT MAJOR:MINOR ROOT TARGET OPTIONS [TAG...] - TYPE SOURCE OPTIONS"
std::optional<Mount> mountinfo_line(std::string_view line)
{
    const std::size_t dash = line.find(" - ");
    if (dash == line.npos)
        return std::nullopt;
    std::string_view where = line.substr(0, dash);
    std::string_view what = line.substr(dash + 3);
    Mount mount;
    mount.id = small_number(take_field(where)).value_or(0);
    mount.parent = small_number(take_field(where)).value_or(0);
    mount.device = device_of(take_field(where));
    mount.root = unescaped(take_field(where));
    mount.target = unescaped(take_field(where));
    mount.type = unescaped(take_field(what));
    mount.source = unescaped(take_field(what));
    // A line that ends too soon is cut off, and what is left of its last field is another's name.
    const bool whole = !where.empty() && !what.empty();
    return whole && !mount.type.empty() ? std::optional(mount) : std::nullopt;
}

/// "SOURCE TARGET TYPE OPTIONS ..."
std::optional<Mount> mounts_line(std::string_view line)
{
    Mount mount;
    mount.source = unescaped(take_field(line));
    mount.target = unescaped(take_field(line));
    mount.type = unescaped(take_field(line));
    return line.empty() || mount.type.empty() ? std::nullopt : std::optional(mount);
}

} // namespace

std::vector<Mount> parse_mounts(const std::string& table)
{
    std::vector<Mount> mounts;
    for (const std::string_view line : lines_of(table)) {
        std::string_view rest = line;
        const bool numbered = small_number(take_field(rest)) && small_number(take_field(rest));
        auto mount = numbered ? mountinfo_line(line) : mounts_line(line);
        if (mount && mount->target.starts_with('/'))
            mounts.push_back(std::move(*mount));
    }
    return mounts;
}

} // namespace ostrelum::linux_platform
