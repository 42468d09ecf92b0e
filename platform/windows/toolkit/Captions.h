#pragma once

#include <string>

namespace ostrelum::windows_platform {

/// A text for a button or a menu, which take "&" for the mark of a letter key: no text of the
/// program has one.
inline std::string without_mnemonics(const std::string& text)
{
    std::string written;
    for (const char letter : text)
        written.append(letter == '&' ? 2 : 1, letter);
    return written;
}

} // namespace ostrelum::windows_platform
