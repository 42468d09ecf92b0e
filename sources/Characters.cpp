#include "sources/Characters.h"

#include "sources/Utf8.h"

namespace ostrelum::inline sources {
namespace {

/// Number of bytes of the first `count` characters; all bytes where there are fewer.
std::size_t bytes_of(std::string_view text, std::size_t count)
{
    std::size_t bytes = 0;
    for (; count > 0 && bytes < text.size(); --count)
        bytes += leading_character(text.substr(bytes)).length;
    return bytes;
}

} // namespace

std::string first_characters(std::string_view text, std::size_t count)
{
    return std::string(text.substr(0, bytes_of(text, count)));
}

std::string last_characters(std::string_view text, std::size_t count)
{
    const std::size_t all = character_count(text);
    return std::string(text.substr(all > count ? bytes_of(text, all - count) : 0));
}

} // namespace ostrelum::inline sources
