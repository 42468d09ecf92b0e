#include "tests/platform/windows/toolkit/ScreenLook.h"

#include "platform/windows/services/Com.h"
#include "platform/windows/services/Wide.h"

#include <commctrl.h>
#include <oleacc.h>

namespace ostrelum::windows_platform {
namespace {

using namespace conformance;

std::wstring class_of(HWND window)
{
    wchar_t name[64]{};
    GetClassNameW(window, name, static_cast<int>(std::size(name)));
    return name;
}

FontSpec font_of(HFONT font)
{
    LOGFONTW about{};
    GetObjectW(font, sizeof about, &about);
    return {.Name = narrow(about.lfFaceName),
            .Size = -about.lfHeight * 72.0 / 96.0,
            .Bold = about.lfWeight >= FW_BOLD,
            .Italic = about.lfItalic != 0,
            .Underline = about.lfUnderline != 0};
}

/// The colour that a window writes with.
Colour ink_of(HWND window)
{
    const HDC dc = CreateCompatibleDC(nullptr);
    SendMessageW(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc), PRF_CLIENT);
    const Colour colour = GetTextColor(dc);
    DeleteDC(dc);
    return colour;
}

void look_at_static(HWND window, Look& look)
{
    const LONG kind = GetWindowLongW(window, GWL_STYLE) & SS_TYPEMASK;
    look.colour = ink_of(window);
    look.wraps = kind != SS_LEFTNOWORDWRAP;
    if (kind == SS_RIGHT)
        look.alignment = Align::Right;
    if (kind == SS_CENTER)
        look.alignment = Align::Centre;
}

void look_at_slider(HWND window, Look& look)
{
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    GetScrollInfo(window, SB_CTL, &info);
    look.min = info.nMin;
    look.max = info.nMax - static_cast<int>(info.nPage) + 1;
    look.value = info.nPos;
}

void look_at_list(HWND window, Look& look)
{
    const auto send = [&](UINT message, WPARAM first, void* second) {
        return SendMessageW(window, message, first, reinterpret_cast<LPARAM>(second));
    };
    look.value = static_cast<int>(send(CB_GETCURSEL, 0, nullptr));
    const auto count = static_cast<WPARAM>(send(CB_GETCOUNT, 0, nullptr));
    for (WPARAM i = 0; i < count; ++i) {
        std::wstring text(static_cast<std::size_t>(send(CB_GETLBTEXTLEN, i, nullptr)), L'\0');
        send(CB_GETLBTEXT, i, text.data());
        look.list.push_back(narrow(text));
    }
}

} // namespace

Spoken spoken_of(HWND window)
{
    ComPtr<IAccessible> read;
    if (FAILED(AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT),
                                          __uuidof(IAccessible),
                                          reinterpret_cast<void**>(read.GetAddressOf()))))
        return {"no accessible object"};
    VARIANT self{};
    self.vt = VT_I4;
    self.lVal = CHILDID_SELF;
    OwnedVariant state;
    read->get_accState(self, &state);
    if (state->lVal & STATE_SYSTEM_INVISIBLE)
        return {};
    BSTR name = nullptr;
    read->get_accName(self, &name);
    const Spoken spoken{name ? narrow(name) : "", (state->lVal & STATE_SYSTEM_SELECTED) != 0};
    SysFreeString(name);
    return spoken;
}

std::string text_of(HWND window)
{
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(
        GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return narrow(text);
}

Look look_of(HWND window)
{
    Look look;
    const std::wstring kind = class_of(window);
    look.text = text_of(window);
    look.visible = IsWindowVisible(window);
    look.enabled = IsWindowEnabled(window);
    look.font = font_of(reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)));
    if (kind == WC_STATICW)
        look_at_static(window, look);
    if (kind == WC_SCROLLBARW)
        look_at_slider(window, look);
    if (kind == WC_COMBOBOXW)
        look_at_list(window, look);
    if (kind == WC_BUTTONW)
        look.value = static_cast<int>(SendMessageW(window, BM_GETCHECK, 0, 0));
    return look;
}

std::vector<MenuEntry> entries_of(HMENU menu)
{
    std::vector<MenuEntry> entries;
    for (int i = 0; i < GetMenuItemCount(menu); ++i) {
        wchar_t text[64]{};
        MENUITEMINFOW about{};
        about.cbSize = sizeof about;
        about.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_STRING;
        about.dwTypeData = text;
        about.cch = static_cast<UINT>(std::size(text));
        GetMenuItemInfoW(menu, static_cast<UINT>(i), TRUE, &about);
        const bool gap = (about.fType & MFT_SEPARATOR) != 0;
        const std::string whole = gap ? "-" : narrow(text);
        const std::size_t end = std::min(whole.find('\t'), whole.size());
        entries.push_back({whole.substr(0, end), gap || (about.fState & MFS_DISABLED) == 0,
                           (about.fState & MFS_DEFAULT) != 0,
                           whole.substr(std::min(end + 1, whole.size()))});
    }
    return entries;
}

} // namespace ostrelum::windows_platform
