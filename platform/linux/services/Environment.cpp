#include "platform/linux/services/Environment.h"

#include "sources/Ascii.h"

#include <algorithm>
#include <array>
#include <pwd.h>
#include <unistd.h>

namespace ostrelum::linux_platform {

namespace {

/// Room for the texts of a line of the password file.
using AccountTexts = std::array<char, 16384>;

/// A text of the password file's line for the user of this process; empty if there is no line.
std::string account_text(char* passwd::*field)
{
    AccountTexts texts = {};
    passwd account = {};
    passwd* found = nullptr;
    if (::getpwuid_r(::getuid(), &account, texts.data(), texts.size(), &found) != 0)
        return "";
    return found == nullptr || found->*field == nullptr ? "" : found->*field;
}

/// An account may have more names than one.
bool names_this_account(const std::string& name)
{
    AccountTexts texts = {};
    passwd account = {};
    passwd* found = nullptr;
    return ::getpwnam_r(name.c_str(), &account, texts.data(), texts.size(), &found) == 0 &&
           found != nullptr && found->pw_uid == ::getuid();
}

bool absolute(std::string_view path)
{
    return path.starts_with('/');
}

} // namespace

Environment process_environment()
{
    Environment result;
    for (char** entry = ::environ; entry != nullptr && *entry != nullptr; ++entry) {
        const std::string_view text = *entry;
        const std::size_t sign = text.find('=');
        if (sign != std::string_view::npos)
            result.emplace(text.substr(0, sign), text.substr(sign + 1));
    }
    return result;
}

std::string variable(const Environment& environment, std::string_view name)
{
    const auto found = environment.find(name);
    return found == environment.end() ? "" : found->second;
}

std::string variable_in_any_case(const Environment& environment, std::string_view name)
{
    if (std::string exact = variable(environment, name); !exact.empty())
        return exact;
    const auto found = std::ranges::find_if(environment, [&](const auto& entry) {
        return same_ascii_letters(entry.first, name) && !entry.second.empty();
    });
    return found == environment.end() ? "" : found->second;
}

std::string home_folder(const Environment& environment)
{
    const std::string home = variable(environment, "HOME");
    return absolute(home) ? home : account_text(&passwd::pw_dir);
}

std::string base_folder(const Environment& environment, std::string_view name,
                        std::string_view fallback)
{
    std::string named = variable(environment, name);
    if (absolute(named))
        return named;
    const std::string home = home_folder(environment);
    return home.empty() ? "" : home + '/' + std::string(fallback);
}

std::string login_name(const Environment& environment)
{
    for (const char* name : {"UserName", "USER", "LOGNAME"}) {
        std::string text = variable_in_any_case(environment, name);
        if (!text.empty() && names_this_account(text))
            return text;
    }
    return account_text(&passwd::pw_name);
}

} // namespace ostrelum::linux_platform
