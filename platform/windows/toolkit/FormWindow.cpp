#include "platform/windows/toolkit/FormWindow.h"

#include "platform/windows/services/Wide.h"
#include "platform/windows/toolkit/DevicePicture.h"
#include "platform/windows/toolkit/Screens.h"
#include "platform/windows/toolkit/TimerBinding.h"

#include <algorithm>

namespace ostrelum::windows_platform {
namespace {

/// Posted for a menu that is to come up.
constexpr UINT menu_wanted = WM_APP;

DWORD style_of(const Form& form, HWND owner)
{
    return WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN |
           (owner ? DWORD{WS_POPUP} : DWORD{WS_OVERLAPPED}) |
           (form.MinButton ? DWORD{WS_MINIMIZEBOX} : 0);
}

HMONITOR screen_under_mouse()
{
    POINT mouse{};
    GetCursorPos(&mouse);
    return MonitorFromPoint(mouse, MONITOR_DEFAULTTOPRIMARY);
}

} // namespace

FormWindow::FormWindow(const Form& form, SharedLook look, DWORD extended_style, HWND owner,
                       std::function<void()> asked_to_close)
    : form_(form), look_(look), events_(form, look.dispatcher), mouse_(events_),
      keyboard_(events_, mouse_, *this), asked_to_close_(std::move(asked_to_close)),
      style_(style_of(form, owner)), scale_(scale_of_screen(screen_under_mouse())),
      window_(CreateWindowExW(extended_style, window_class(), L"", style_, CW_USEDEFAULT,
                              CW_USEDEFAULT, 0, 0, owner, nullptr, GetModuleHandleW(nullptr),
                              nullptr)),
      tooltips_(handle()), focus_frame_(handle()), announcement_(handle())
{
    scale_ = look_.scale =
        fitting_scale(scale_of_window(handle()), screen_under_mouse(), look_.largest);
    for (const ControlEntry& entry : form_.controls)
        controls_.push_back(make_control(place_of(form_, entry), *this, events_));
    // From here on there is all that messages need.
    SetWindowLongPtrW(handle(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

FormWindow::~FormWindow()
{
    SetWindowLongPtrW(handle(), GWLP_USERDATA, 0);
    // Those that lie in a box go before it.
    while (!controls_.empty())
        controls_.pop_back();
}

const wchar_t* FormWindow::window_class()
{
    static const wchar_t* const name = [] {
        WNDCLASSEXW about{};
        about.cbSize = sizeof about;
        about.lpfnWndProc = receive;
        about.hInstance = GetModuleHandleW(nullptr);
        about.lpszClassName = L"Dervalin Ostrelum";
        RegisterClassExW(&about);
        return about.lpszClassName;
    }();
    return name;
}

LRESULT CALLBACK FormWindow::receive(HWND window, UINT number, WPARAM first, LPARAM second)
{
    auto* self = reinterpret_cast<FormWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!self)
        return DefWindowProcW(window, number, first, second);
    const Message message{number, first, second};
    const std::optional<LRESULT> answer = self->answer(form_itself, message);
    return answer ? *answer : self->handle_message(message);
}

LRESULT FormWindow::handle_message(const Message& message)
{
    switch (message.number) {
    case WM_PAINT: paint(); return 0;
    case WM_ERASEBKGND: return TRUE;
    case WM_CLOSE: asked_to_close_(); return 0;
    case WM_TIMER: tick(static_cast<int>(message.first) - 1); return 0;
    case WM_DPICHANGED:
        screen_changed({HIWORD(message.first)}, *reinterpret_cast<const RECT*>(message.second));
        return 0;
    case menu_wanted: show_menu(); return 0;
    default: return DefWindowProcW(handle(), message.number, message.first, message.second);
    }
}

void FormWindow::tick(int control)
{
    if (control < 0 || control >= static_cast<int>(controls_.size()))
        return;
    const auto& binding = controls_[static_cast<std::size_t>(control)].binding;
    if (auto* timer = dynamic_cast<TimerBinding*>(binding.get()))
        timer->tick();
}

ControlWindow* FormWindow::control_window(int control) const
{
    return controls_.at(static_cast<std::size_t>(control)).window;
}

HWND FormWindow::window(int control) const
{
    if (control == form_itself)
        return handle();
    const ControlWindow* made = control_window(control);
    return made ? made->handle() : nullptr;
}

void FormWindow::sync()
{
    sync_frame();
    const int focus = keyboard_.focus_after_change();
    for (const ControlParts& control : controls_) {
        if (control.binding)
            control.binding->sync();
    }
    if (focus != focus_)
        set_focus(focus);
    keyboard_.show_focus();
    tell_readers();
}

void FormWindow::sync_frame()
{
    FormFrame wanted = frame_of(form_);
    if (shown_ == wanted)
        return;
    SetWindowTextW(handle(), wide(wanted.Caption).c_str());
    place_client(wanted);
    set_icons(wanted);
    shown_ = std::move(wanted);
    InvalidateRect(handle(), nullptr, FALSE);
}

void FormWindow::place_client(const FormFrame& frame)
{
    const SIZE client{scale_.to_screen(frame.ClientWidth), scale_.to_screen(frame.ClientHeight)};
    SIZE whole = size_with_frame(client, style_,
                                 static_cast<DWORD>(GetWindowLongW(handle(), GWL_EXSTYLE)), scale_);
    // The frame may turn out wider than the system has told, as while the screen's scale changes.
    for (int tries = 0; tries < 2; ++tries) {
        SetWindowPos(handle(), nullptr, 0, 0, whole.cx, whole.cy,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        RECT made{};
        GetClientRect(handle(), &made);
        whole.cx += client.cx - made.right;
        whole.cy += client.cy - made.bottom;
    }
}

void FormWindow::set_icons(const FormFrame& frame)
{
    const struct {
        WPARAM kind;
        int metric;
    } kinds[] = {{ICON_BIG, SM_CXICON}, {ICON_SMALL, SM_CXSMICON}};
    for (std::size_t i = 0; i < std::size(kinds); ++i) {
        OwnedIcon icon =
            icon_of(frame.Icon[i], scale_.to_screen(GetSystemMetrics(kinds[i].metric)));
        SendMessageW(handle(), WM_SETICON, kinds[i].kind, reinterpret_cast<LPARAM>(icon.get()));
        icons_[i] = std::move(icon);
    }
}

/// In the middle of the screen, but with all of the frame's top on it.
void FormWindow::bring_up()
{
    if (!IsWindowVisible(handle())) {
        const RECT free = free_part_of(screen_under_mouse());
        // A move to a screen of another scale changes the window's size.
        for (int tries = 0; tries < 2; ++tries) {
            RECT whole{};
            GetWindowRect(handle(), &whole);
            const int left = free.left + (width_of(free) - width_of(whole)) / 2;
            const int top = free.top + (height_of(free) - height_of(whole)) / 2;
            SetWindowPos(handle(), nullptr, std::max<int>(left, free.left),
                         std::max<int>(top, free.top), 0, 0,
                         SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        }
    }
    ShowWindow(handle(), SW_SHOW);
    SetForegroundWindow(handle());
    UpdateWindow(handle());
}

void FormWindow::screen_changed(Scale scale, const RECT& proposed)
{
    const HMONITOR screen = MonitorFromWindow(handle(), MONITOR_DEFAULTTONEAREST);
    scale_ = look_.scale = fitting_scale(scale, screen, look_.largest);
    shown_.reset();
    for (const ControlParts& control : controls_) {
        if (control.binding)
            control.binding->forget();
    }
    SetWindowPos(handle(), nullptr, proposed.left, proposed.top, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    look_.dispatcher.sync_all();
}

void FormWindow::close_down()
{
    events_.close();
    closed_ = true;
    for (const ControlParts& control : controls_) {
        if (control.binding)
            control.binding->stop();
    }
    if (going)
        going();
    ShowWindow(handle(), SW_HIDE);
}

void FormWindow::pop_up(const MenuRequest& request)
{
    menu_ = request;
    mouse_.let_go();
    PostMessageW(handle(), menu_wanted, 0, 0);
}

void FormWindow::show_menu()
{
    const std::optional<MenuRequest> wanted = std::exchange(menu_, std::nullopt);
    if (!wanted || closed_)
        return;
    if (const auto chosen = choose_from_menu(form_, *wanted, handle()))
        events_.raise(*chosen, {.kind = EventKind::Click});
}

void FormWindow::set_tooltip(int control, const std::string& text)
{
    tooltips_.set(window(control), text);
}

} // namespace ostrelum::windows_platform
