#include "platform/windows/toolkit/Announcement.h"

#include "platform/windows/services/Wide.h"
#include "platform/windows/toolkit/Accessible.h"

#include <commctrl.h>

namespace ostrelum::windows_platform {
namespace {

constexpr UINT_PTR own_subclass = 1;

std::wstring text_of(HWND window)
{
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)), L'\0');
    GetWindowTextW(window, text.data(), static_cast<int>(text.size()) + 1);
    return text;
}

} // namespace

/// It has no size, but is not hidden: readers pass over what is.
Announcement::Announcement(HWND form)
    : window_(CreateWindowExW(0, WC_STATICW, L"", WS_CHILD | WS_VISIBLE, 0, 0, 0, 0, form, nullptr,
                              GetModuleHandleW(nullptr), nullptr))
{
    SetWindowSubclass(window_.get(), receive, own_subclass, 0);
}

void Announcement::say(const std::string& text)
{
    SetWindowTextW(window_.get(), wide(text).c_str());
    NotifyWinEvent(EVENT_SYSTEM_ALERT, window_.get(), OBJID_CLIENT, CHILDID_SELF);
}

LRESULT CALLBACK Announcement::receive(HWND window, UINT number, WPARAM first, LPARAM second,
                                       UINT_PTR, DWORD_PTR)
{
    if (number == WM_GETOBJECT && static_cast<LONG>(second) == LONG{OBJID_CLIENT}) {
        if (const LRESULT object = accessible_object(window, first))
            return object;
    }
    if (number == what_is_spoken) {
        auto& spoken = *reinterpret_cast<Spoken*>(second);
        spoken.name = text_of(window);
        spoken.role = ROLE_SYSTEM_ALERT;
        return TRUE;
    }
    return DefSubclassProc(window, number, first, second);
}

} // namespace ostrelum::windows_platform
