#pragma once

#include <string>
#include <string_view>

namespace ostrelum::inline sources {

/// Well-formed UTF-8 (Unicode Standard, table 3-7): no overlong form, no surrogate, nothing above
/// U+10FFFF.
bool valid_utf8(std::string_view text);

/// The text with U+FFFD in place of each byte that belongs to no well-formed character.
std::string made_valid_utf8(std::string_view text);

/// Valid UTF-8 with a blank in place of each control character of ISO 646 and ISO 8859-1: on a page
/// it would be a box, and in a report the end of a line.
std::string made_one_line(std::string text);

} // namespace ostrelum::inline sources
