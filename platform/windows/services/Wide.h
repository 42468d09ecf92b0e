#pragma once

#include <string>
#include <string_view>

namespace ostrelum::windows_platform {

/// UTF-16 of a text in UTF-8, as the system's calls take it. U+FFFD stands for what is no
/// character.
std::wstring wide(std::string_view utf8);

/// UTF-8 of what the system gives. Half a surrogate pair becomes U+FFFD.
std::string narrow(std::wstring_view utf16);

} // namespace ostrelum::windows_platform
