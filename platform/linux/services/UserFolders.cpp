#include "platform/linux/services/UserFolders.h"

#include "platform/linux/files/FolderEntries.h"
#include "platform/linux/files/WholeFile.h"
#include "platform/system/Failure.h"
#include "sources/Ascii.h"

#include <algorithm>
#include <deque>
#include <filesystem>
#include <system_error>
#include <utility>

namespace ostrelum::linux_platform {

namespace {

namespace fs = std::filesystem;

constexpr int entry_limit = 20000;
constexpr int depth_limit = 6;

bool is_folder(const fs::path& path)
{
    std::error_code error;
    return fs::is_directory(path, error);
}

bool named(const fs::directory_entry& entry, const std::string& name)
{
    return same_ascii_letters(entry.path().filename().native(), name);
}

/// The folder at or below `top` that holds a file of that name, level by level. Links to folders
/// are followed: fonts of another system often lie behind one. The budget ends a circle.
std::optional<std::string> holder(const std::string& top, const std::string& name)
{
    int budget = entry_limit;
    std::deque<std::pair<fs::path, int>> waiting{{top, 0}};
    for (; !waiting.empty() && budget > 0; waiting.pop_front()) {
        const std::pair<fs::path, int> at = waiting.front();
        const bool here = any_entry(at.first, budget, [&](const fs::directory_entry& entry) {
            std::error_code error;
            if (named(entry, name))
                return entry.is_regular_file(error);
            if (at.second < depth_limit && entry.is_directory(error))
                waiting.emplace_back(entry.path(), at.second + 1);
            return false;
        });
        if (here)
            return at.first.native();
    }
    return std::nullopt;
}

/// The text between the quotes, without the backslashes that guard a sign from the shell.
std::optional<std::string> unquoted(std::string_view text)
{
    if (!text.starts_with('"'))
        return std::nullopt;
    std::string result;
    for (std::size_t i = 1; i < text.size() && text[i] != '"'; ++i) {
        if (text[i] == '\\' && ++i == text.size())
            break;
        result += text[i];
    }
    return result;
}

} // namespace

std::optional<std::string> file_in_folder(const std::string& folder, const std::string& name)
{
    const fs::path exact = fs::path(folder) / name;
    std::error_code error;
    if (fs::exists(exact, error))
        return exact.native();
    std::optional<std::string> found;
    int budget = entry_limit;
    any_entry(folder, budget, [&](const fs::directory_entry& entry) {
        if (named(entry, name))
            found = entry.path().native();
        return found.has_value();
    });
    return found;
}

std::optional<std::string> desktop_named(std::string_view user_dirs, const std::string& home)
{
    constexpr std::string_view variable_name = "XDG_DESKTOP_DIR=";
    constexpr std::string_view home_mark = "$HOME";
    std::optional<std::string> result;
    while (!user_dirs.empty()) {
        const std::string_view whole = user_dirs.substr(0, user_dirs.find('\n'));
        user_dirs.remove_prefix(std::min(user_dirs.size(), whole.size() + 1));
        const std::string_view line = trim_blanks(whole);
        if (!line.starts_with(variable_name))
            continue;
        const auto path = unquoted(line.substr(variable_name.size()));
        if (path && path->starts_with('/'))
            result = *path;
        else if (path && (*path == home_mark || path->starts_with("$HOME/")))
            result = home + path->substr(home_mark.size());
    }
    return result;
}

std::optional<std::string> desktop_folder(const Environment& environment)
{
    const std::string home = home_folder(environment);
    std::optional<std::string> named_folder;
    try {
        const std::string config = base_folder(environment, "XDG_CONFIG_HOME", ".config");
        if (const auto text = read_whole_file(config + "/user-dirs.dirs", 65536))
            named_folder = desktop_named(*text, home);
    } catch (const Failure&) {
        // Unreadable is as good as missing: the usual folder may still be there.
    }
    for (const std::string& folder : {named_folder.value_or(""), home + "/Desktop", home}) {
        if (is_folder(folder))
            return folder;
    }
    return std::nullopt;
}

std::vector<std::string> font_places(const Environment& environment)
{
    return {base_folder(environment, "XDG_DATA_HOME", ".local/share") + "/fonts",
            home_folder(environment) + "/.fonts", "/usr/local/share/fonts", "/usr/share/fonts"};
}

std::optional<std::string> segoe_folder(const std::vector<std::string>& places)
{
    for (const std::string& place : places) {
        if (auto folder = holder(place, "segoeui.ttf"))
            return folder;
    }
    return std::nullopt;
}

} // namespace ostrelum::linux_platform
