#pragma once

#include <string>
#include <string_view>

namespace ostrelum {

/// Well-formed UTF-8 (Unicode Standard, table 3-7): no overlong form, no surrogate, nothing above
/// U+10FFFF.
bool valid_utf8(std::string_view text);

/// The text with U+FFFD in place of each byte that belongs to no well-formed character.
std::string made_valid_utf8(std::string_view text);

} // namespace ostrelum
