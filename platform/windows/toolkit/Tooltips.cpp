#include "platform/windows/toolkit/Tooltips.h"

#include "platform/windows/services/Wide.h"

#include <commctrl.h>

namespace ostrelum::windows_platform {
namespace {

/// Pixels between a tooltip's text and the screen's edges, for its frame.
constexpr int margin = 20;

TTTOOLINFOW tool_of(HWND form, HWND control)
{
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = form;
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    return tool;
}

} // namespace

Tooltips::Tooltips(HWND form)
    : form_(form), window_(CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, L"",
                                           WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0, 0, 0,
                                           form, nullptr, GetModuleHandleW(nullptr), nullptr))
{
}

void Tooltips::set(HWND control, const std::string& text)
{
    TTTOOLINFOW tool = tool_of(form_, control);
    std::wstring words = wide(text);
    tool.lpszText = words.data();
    const auto send = [&](UINT message) {
        return SendMessageW(window_.get(), message, 0, reinterpret_cast<LPARAM>(&tool));
    };
    send(TTM_DELTOOLW);
    if (words.empty())
        return;
    send(TTM_ADDTOOLW);
    // The text alone would not be broken into lines, however long.
    SendMessageW(window_.get(), TTM_SETMAXTIPWIDTH, 0,
                 ::GetSystemMetrics(SM_CXSCREEN) - 2 * margin);
}

} // namespace ostrelum::windows_platform
