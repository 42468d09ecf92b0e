#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace ostrelum::inline sources {

/// The character that a text begins with.
struct Utf8Character {
    /// U+FFFD for a byte that belongs to no well-formed character.
    char32_t point = 0xFFFD;
    /// Number of its bytes.
    std::size_t length = 1;
    bool well_formed = false;
};

/// How everything here steps through a text: the first character of one that is not empty.
Utf8Character leading_character(std::string_view text);

/// Number of characters: code points, not bytes.
std::size_t character_count(std::string_view text);

/// Well-formed UTF-8 (Unicode Standard, table 3-7): no overlong form, no surrogate, nothing above
/// U+10FFFF.
bool valid_utf8(std::string_view text);

/// The text with U+FFFD in place of each byte that belongs to no well-formed character.
std::string made_valid_utf8(std::string_view text);

/// Valid UTF-8 with a blank in place of each control character of ISO 646 and ISO 8859-1: on a page
/// it would be a box, and in a report the end of a line.
std::string made_one_line(std::string text);

} // namespace ostrelum::inline sources
