#pragma once

#include <string>
#include <string_view>

namespace ostrelum::inline sources {

/// UTF-8 text in Windows-1252, the code page of Western systems: one byte for each character,
/// "?" for a character that the page does not have.
std::string windows_1252(std::string_view utf8);

} // namespace ostrelum::inline sources
