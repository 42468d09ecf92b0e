#include "sources/Characters.h"

#include <algorithm>

namespace ostrelum::inline sources {
namespace {

/// Bytes behind the first of a character have the two high bits 10.
bool begins_character(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

/// Bytes before the character of that index; all bytes where there is no such character.
std::size_t bytes_before(std::string_view text, std::size_t index)
{
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (begins_character(text[at]) && index-- == 0)
            return at;
    }
    return text.size();
}

} // namespace

std::size_t character_count(std::string_view text)
{
    return static_cast<std::size_t>(std::ranges::count_if(text, begins_character));
}

std::string first_characters(std::string_view text, std::size_t count)
{
    return std::string(text.substr(0, bytes_before(text, count)));
}

std::string last_characters(std::string_view text, std::size_t count)
{
    const std::size_t all = character_count(text);
    return std::string(text.substr(all > count ? bytes_before(text, all - count) : 0));
}

} // namespace ostrelum::inline sources
