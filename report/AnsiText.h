#pragma once

#include <string>
#include <string_view>

namespace ostrelum::inline report {

/// UTF-8 text in the ANSI code page of a Western system, Windows-1252: one byte for each character,
/// "?" for a character that the page does not have, and for a byte that is no UTF-8.
std::string ansi_text(std::string_view utf8);

} // namespace ostrelum::inline report
