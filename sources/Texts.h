#pragma once

#include <string>
#include <string_view>

namespace ostrelum::inline sources {

/// The end of a line in what leaves the program.
inline constexpr char crlf[] = "\r\n";

/// `form` with every occurrence of `mark` replaced by `value`, in one pass: a mark that stands in
/// the value stays. Upper and lower case count.
std::string FillMark(std::string_view form, std::string_view mark, std::string_view value);

/// The first character upper-cased and all others lower-cased, whatever the user's locale:
/// WORKGROUP becomes Workgroup.
std::string CapitalText(std::string_view text);

} // namespace ostrelum::inline sources
