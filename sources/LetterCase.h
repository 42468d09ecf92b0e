#pragma once

#include <string>
#include <string_view>

/// Upper and lower case of the Latin, Greek, Cyrillic and Armenian letters, one character for one,
/// the same in every locale (Unicode's simple case mappings). Other characters stay as they are.
namespace ostrelum::inline sources {

char32_t upper_case(char32_t character);
char32_t lower_case(char32_t character);

/// The same for each character of UTF-8 text; bytes that are no UTF-8 stay.
std::string upper_case(std::string_view text);
std::string lower_case(std::string_view text);

} // namespace ostrelum::inline sources
