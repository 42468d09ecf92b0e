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

Utf8Character leading_character(std::string_view text)
{
    const std::size_t length = character_length(text);
    if (length == 0)
        return {};
    // The first of several bytes begins with a set bit for each of them, and a clear one.
    const auto lead = static_cast<unsigned char>(text.front());
    char32_t point = length == 1 ? lead : lead & 0xFFU >> (length + 1);
    for (const char byte : text.substr(1, length - 1))
        point = point << 6U | (static_cast<unsigned char>(byte) & 0x3FU);
    return {.point = point, .length = length, .well_formed = true};
}

std::size_t character_count(std::string_view text)
{
    std::size_t count = 0;
    for (; !text.empty(); text.remove_prefix(leading_character(text).length))
        ++count;
    return count;
}

bool valid_utf8(std::string_view text)
{
    while (!text.empty()) {
        const Utf8Character next = leading_character(text);
        if (!next.well_formed)
            return false;
        text.remove_prefix(next.length);
    }
    return true;
}

std::string made_valid_utf8(std::string_view text)
{
    std::string result;
    while (!text.empty()) {
        const Utf8Character next = leading_character(text);
        result += next.well_formed ? text.substr(0, next.length) : "\xEF\xBF\xBD";
        text.remove_prefix(next.length);
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
