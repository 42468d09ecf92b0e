#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Characters of UTF-8 text are code points, not bytes.
namespace ostrelum::inline sources {

/// The first `count` characters; the whole text where it is shorter.
std::string first_characters(std::string_view text, std::size_t count);

/// The last `count` characters; the whole text where it is shorter.
std::string last_characters(std::string_view text, std::size_t count);

} // namespace ostrelum::inline sources
