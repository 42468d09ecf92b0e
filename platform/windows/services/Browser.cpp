#include "platform/windows/services/Browser.h"

#include "platform/windows/services/Wide.h"

#include <windows.h>

#include <shellapi.h>

namespace ostrelum::windows_platform {

void WindowsBrowser::ShellExecuteA(const std::string& verb, const std::string& address)
{
    // Whether a browser came up is for the user to see.
    ShellExecuteW(nullptr, wide(verb).c_str(), wide(address).c_str(), nullptr, nullptr,
                  SW_SHOWNORMAL);
}

} // namespace ostrelum::windows_platform
