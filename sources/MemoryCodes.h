#pragma once

#include <string>
#include <string_view>

/// What the codes of a memory module stand for, from their decimal text. Empty for text that is no
/// such code, and for the codes that say no more than "unknown", "other" or "proprietary".
namespace ostrelum::inline sources {

/// The kind of memory, such as "DDR2" for "21".
std::string memory_type_text(std::string_view code);

/// The shape of the module, such as "DIMM" for "8".
std::string form_factor_text(std::string_view code);

} // namespace ostrelum::inline sources
