#include "platform/windows/toolkit/ControlWindow.h"

#include "platform/windows/services/Wide.h"

#include <commctrl.h>

namespace ostrelum::windows_platform {
namespace {

constexpr UINT_PTR own_subclass = 1;

HWND make_child(int control, const FormHost& host, const wchar_t* kind, DWORD style)
{
    const int holder = entry_at(host.form(), control).container;
    // A control's number is its place, counted from 1.
    return CreateWindowExW(0, kind, L"", WS_CHILD | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | style, 0, 0,
                           0, 0, host.window(holder),
                           reinterpret_cast<HMENU>(static_cast<INT_PTR>(control + 1)),
                           GetModuleHandleW(nullptr), nullptr);
}

/// Later controls lie over earlier ones. Those of one array lie side by side, where it does not
/// matter: the first is the topmost, since screen readers read from the top down.
HWND window_above(int control, const FormHost& host)
{
    const ControlEntry& entry = entry_at(host.form(), control);
    return entry.index > 1 ? host.window(control - 1) : HWND_TOP;
}

} // namespace

bool moves_value(Key key)
{
    switch (key) {
    case Key::Up:
    case Key::Down:
    case Key::Left:
    case Key::Right:
    case Key::Home:
    case Key::End:
    case Key::PageUp:
    case Key::PageDown: return true;
    default: return false;
    }
}

ControlWindow::ControlWindow(int control, FormHost& host, const wchar_t* kind, DWORD style)
    : control_number_(control), host_(host), window_(make_child(control, host, kind, style))
{
    SetWindowSubclass(handle(), receive, own_subclass, reinterpret_cast<DWORD_PTR>(this));
    SetWindowPos(handle(), window_above(control, host), 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

ControlWindow::~ControlWindow()
{
    RemoveWindowSubclass(handle(), receive, own_subclass);
}

LRESULT CALLBACK ControlWindow::receive(HWND, UINT number, WPARAM first, LPARAM second, UINT_PTR,
                                        DWORD_PTR self)
{
    auto& window = *reinterpret_cast<ControlWindow*>(self);
    const Message message{number, first, second};
    const std::optional<LRESULT> answer = window.host_.answer(window.control_number_, message);
    return answer ? *answer : window.handle_message(message);
}

LRESULT ControlWindow::by_default(const Message& message) const
{
    return DefSubclassProc(handle(), message.number, message.first, message.second);
}

void ControlWindow::set_place(const Area& area)
{
    const RECT place = host_.scale().to_screen(area);
    host_.draw_anew(control_number_);
    SetWindowPos(handle(), nullptr, place.left, place.top, width_of(place), height_of(place),
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
    host_.draw_anew(control_number_);
}

void ControlWindow::set_text(const std::string& text)
{
    SetWindowTextW(handle(), wide(text).c_str());
}

void ControlWindow::set_font(const FontSpec& spec)
{
    SendMessageW(handle(), WM_SETFONT, reinterpret_cast<WPARAM>(host_.font(spec)), FALSE);
}

void ControlWindow::set_visible(bool visible)
{
    ShowWindow(handle(), visible ? SW_SHOWNA : SW_HIDE);
    host_.draw_anew(control_number_);
}

void ControlWindow::set_enabled(bool enabled)
{
    EnableWindow(handle(), enabled);
}

} // namespace ostrelum::windows_platform
