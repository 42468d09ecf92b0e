#include "platform/windows/services/Wide.h"

#include <algorithm>
#include <climits>

#include <windows.h>

namespace ostrelum::windows_platform {
namespace {

/// The system counts in int; a longer text is none that anybody reads.
template <class View>
int length_of(const View& text)
{
    return static_cast<int>(std::min<std::size_t>(text.size(), INT_MAX / 4));
}

} // namespace

std::wstring wide(std::string_view utf8)
{
    const int given = length_of(utf8);
    const int needed = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), given, nullptr, 0);
    std::wstring text(static_cast<std::size_t>(needed), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), given, text.data(), needed);
    return text;
}

std::string narrow(std::wstring_view utf16)
{
    const int given = length_of(utf16);
    const int needed =
        WideCharToMultiByte(CP_UTF8, 0, utf16.data(), given, nullptr, 0, nullptr, nullptr);
    std::string text(static_cast<std::size_t>(needed), '\0');
    WideCharToMultiByte(CP_UTF8, 0, utf16.data(), given, text.data(), needed, nullptr, nullptr);
    return text;
}

} // namespace ostrelum::windows_platform
