#include "sources/Utf8.h"

#include <algorithm>

namespace ostrelum::inline sources {

namespace {

bool between(unsigned char byte, unsigned char low, unsigned char high)
{
    return byte >= low && byte <= high;
}

/// Length of the well-formed character at the start of `text`; 0 if there is none.
std::size_t character_length(std::string_view text)
{
    const auto at = [&](std::size_t i) {
        return i < text.size() ? static_cast<unsigned char>(text[i])
                               : static_cast<unsigned char>(0);
    };
    const auto continues = [&](std::size_t i) { return between(at(i), 0x80, 0xBF); };
    const unsigned char lead = at(0);
    if (lead < 0x80)
        return 1;
    if (between(lead, 0xC2, 0xDF))
        return continues(1) ? 2 : 0;
    if (between(lead, 0xE0, 0xEF)) {
        const unsigned char low = lead == 0xE0 ? 0xA0 : 0x80;
        const unsigned char high = lead == 0xED ? 0x9F : 0xBF;
        return between(at(1), low, high) && continues(2) ? 3 : 0;
    }
    if (between(lead, 0xF0, 0xF4)) {
        const unsigned char low = lead == 0xF0 ? 0x90 : 0x80;
        const unsigned char high = lead == 0xF4 ? 0x8F : 0xBF;
        return between(at(1), low, high) && continues(2) && continues(3) ? 4 : 0;
    }
    return 0;
}

} // namespace

bool valid_utf8(std::string_view text)
{
    while (!text.empty()) {
        const std::size_t length = character_length(text);
        if (length == 0)
            return false;
        text.remove_prefix(length);
    }
    return true;
}

std::string made_valid_utf8(std::string_view text)
{
    std::string result;
    while (!text.empty()) {
        const std::size_t length = character_length(text);
        result += length == 0 ? "\xEF\xBF\xBD" : text.substr(0, length);
        text.remove_prefix(length == 0 ? 1 : length);
    }
    return result;
}

std::string made_one_line(std::string text)
{
    const auto is_control = [](unsigned char c) { return c < ' ' || c == 0x7F; };
    std::ranges::replace_if(text, is_control, ' ');
    // U+0080 to U+009F.
    for (std::size_t at = 0; (at = text.find('\xC2', at)) != text.npos; ++at) {
        if (static_cast<unsigned char>(text[at + 1]) < 0xA0)
            text.replace(at, 2, " ");
    }
    return text;
}

} // namespace ostrelum::inline sources
