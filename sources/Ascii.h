#pragma once

#include <string>
#include <string_view>

namespace ostrelum::inline sources {

/// Case mapping of the 26 letters, whatever the user's locale.
constexpr char lower_ascii(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

constexpr bool same_ascii_letters(std::string_view a, std::string_view b)
{
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (lower_ascii(a[i]) != lower_ascii(b[i]))
            return false;
    }
    return true;
}

/// Without the blanks at both ends; tabs and line ends stay, as they do in the service's own texts.
constexpr std::string_view trim_blanks(std::string_view text)
{
    while (!text.empty() && text.front() == ' ')
        text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return text;
}

} // namespace ostrelum::inline sources
