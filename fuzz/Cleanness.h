#pragma once

#include "sources/Utf8.h"

#include <algorithm>
#include <string_view>

/// What texts of the machine must be before anybody sees them.
namespace ostrelum {

/// Valid UTF-8 without a control character of ISO 646 or ISO 8859-1.
inline bool is_clean_line(std::string_view text)
{
    const auto is_control = [](char c) { return (c >= 0 && c < ' ') || c == '\x7F'; };
    for (std::size_t at = 0; (at = text.find('\xC2', at)) != text.npos; ++at) {
        if (at + 1 < text.size() && static_cast<unsigned char>(text[at + 1]) < 0xA0)
            return false;
    }
    return valid_utf8(text) && std::ranges::none_of(text, is_control);
}

/// Clean lines, each but the last with this end.
inline bool are_clean_lines(std::string_view text, std::string_view line_end)
{
    while (true) {
        const auto end = std::min(text.find(line_end), text.size());
        if (!is_clean_line(text.substr(0, end)))
            return false;
        if (end == text.size())
            return true;
        text.remove_prefix(end + line_end.size());
    }
}

} // namespace ostrelum
