#include "console/Options.h"

#include <algorithm>
#include <array>

namespace ostrelum::console {
namespace {

bool is_language(const std::string& name)
{
    constexpr std::array<std::string_view, 3> languages{"English", "Spanish", "Dutch"};
    return std::ranges::find(languages, name) != languages.end();
}

/// Takes one option; false for one that is not known or whose value is none.
bool take(Options& options, const std::string& name, const std::string& value)
{
    if (name == "--sysroot")
        options.sysroot = value;
    else if (name == "--language" && is_language(value))
        options.language = value;
    else if (name == "--user")
        options.user = value;
    else
        return false;
    return !value.empty();
}

} // namespace

const char* const usage =
    "Usage: ostrelum-console [OPTION...] COMMAND\n"
    "\n"
    "Commands:\n"
    "  query \"WQL\"        the objects that the query gives, as JSON\n"
    "  page N|all         the text of a section page, N from 1 to 13, or of all\n"
    "  report FORMAT      the report as text, html, rtf or bbcode\n"
    "  report FORMAT --output FILE\n"
    "                     the same into a file, as the window saves it\n"
    "  record DIR         what all of these read of the machine, copied into a new folder\n"
    "  classes            every class with its properties and their types\n"
    "\n"
    "Options:\n"
    "  --sysroot DIR      a recorded machine instead of this one\n"
    "  --language NAME    English, Spanish or Dutch\n"
    "  --user NAME        the account of the user page\n"
    "  --mask             \"(hidden)\" for names of users, machines, networks, volumes\n"
    "                     and folders and for serial numbers; before record, too\n";

std::optional<Options> read_options(const std::vector<std::string>& arguments)
{
    Options options;
    std::size_t at = 0;
    while (at < arguments.size() && arguments[at].starts_with("--")) {
        const bool mask = arguments[at] == "--mask";
        options.mask = options.mask || mask;
        const std::size_t next = at + (mask ? 1 : 2);
        if (!mask && (next > arguments.size() || !take(options, arguments[at], arguments[at + 1])))
            return std::nullopt;
        at = next;
    }
    options.command.assign(arguments.begin() + static_cast<std::ptrdiff_t>(at), arguments.end());
    if (options.command.empty())
        return std::nullopt;
    return options;
}

} // namespace ostrelum::console
