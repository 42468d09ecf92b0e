#pragma once

#include <string>

#include <windows.h>

namespace ostrelum::windows_platform {

/// Asks the user, in the system's language, whether a file that is there may be replaced. Both
/// texts are UTF-8.
bool may_replace(HWND owner, const std::string& title, const std::string& file);

} // namespace ostrelum::windows_platform
