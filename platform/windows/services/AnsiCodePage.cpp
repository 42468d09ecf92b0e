#include "platform/windows/services/AnsiCodePage.h"

#include "platform/windows/services/Wide.h"

#include <array>

#include <windows.h>

namespace ostrelum::windows_platform {
namespace {

bool is_high_surrogate(wchar_t unit)
{
    return unit >= 0xD800 && unit < 0xDC00;
}

/// One character, which may take two units, in the code page. A letter that merely looks alike
/// would be another one.
std::string character_in(unsigned int code_page, std::wstring_view character)
{
    std::array<char, 8> bytes{};
    BOOL replaced = FALSE;
    const int length = WideCharToMultiByte(code_page, WC_NO_BEST_FIT_CHARS, character.data(),
                                           static_cast<int>(character.size()), bytes.data(),
                                           static_cast<int>(bytes.size()), "?", &replaced);
    if (length <= 0 || replaced)
        return "?";
    return {bytes.data(), static_cast<std::size_t>(length)};
}

} // namespace

WindowsAnsiCodePage::WindowsAnsiCodePage() : number_(GetACP()) {}

std::string WindowsAnsiCodePage::encoded(std::string_view utf8)
{
    const std::wstring text = wide(utf8);
    // A user may have made UTF-8 the system's code page; it lacks nothing.
    if (number_ == CP_UTF8)
        return narrow(text);
    std::string bytes;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t units = is_high_surrogate(text[at]) && at + 1 < text.size() ? 2 : 1;
        bytes += character_in(number_, std::wstring_view(text).substr(at, units));
        at += units;
    }
    return bytes;
}

} // namespace ostrelum::windows_platform
