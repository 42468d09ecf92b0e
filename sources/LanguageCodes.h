#pragma once

#include <string>
#include <string_view>

namespace ostrelum::inline sources {

/// The name of the operating system's language, from the decimal text of its code; the names do not
/// depend on the program's language. Empty for a code without a name here.
std::string language_name(std::string_view code);

} // namespace ostrelum::inline sources
