#include "platform/windows/toolkit/WindowsToolkit.h"

#include "platform/windows/services/Wide.h"
#include "platform/windows/toolkit/Screens.h"

#include <algorithm>

#include <commctrl.h>

namespace ostrelum::windows_platform {
namespace {

using Windows = std::map<const Form*, std::unique_ptr<FormWindow>>;

/// The windows that took input and do not any more.
std::vector<HWND> disable_all(const Windows& windows)
{
    std::vector<HWND> disabled;
    for (const auto& [form, window] : windows) {
        const bool was_disabled = EnableWindow(window->handle(), FALSE) != 0;
        if (!was_disabled)
            disabled.push_back(window->handle());
    }
    return disabled;
}

HMONITOR primary_screen()
{
    return MonitorFromPoint({0, 0}, MONITOR_DEFAULTTOPRIMARY);
}

} // namespace

std::unique_ptr<Toolkit> make_windows_toolkit(const WindowsLook& look)
{
    return std::make_unique<WindowsToolkit>(look);
}

WindowsToolkit::WindowsToolkit(const WindowsLook& look)
    : cursors_(look.hand, look.hot_spot), largest_{look.window_width, look.window_height},
      scale_(fitting_scale(scale_of_screen(primary_screen()), primary_screen(), largest_)),
      dispatcher_([this] {
          for (const auto& [form, window] : windows_)
              window->sync();
      })
{
}

void WindowsToolkit::InitCommonControls()
{
    ::InitCommonControls();
}

TextSize WindowsToolkit::text_size(const std::string& text, const FontSpec& font) const
{
    const InkSize size = measure(wide(text), fonts_.get(font, scale_));
    return {scale_.room_on_form(size.text.cx + size.right), scale_.room_on_form(size.text.cy)};
}

FormWindow* WindowsToolkit::window_of(const Form& form) const
{
    const auto found = windows_.find(&form);
    return found == windows_.end() ? nullptr : found->second.get();
}

FormWindow& WindowsToolkit::make_window(Form& form, HWND owner)
{
    if (FormWindow* window = window_of(form))
        return *window;
    const auto style = static_cast<DWORD>(styles_.get(form, extended_style_index));
    windows_[&form] = std::make_unique<FormWindow>(
        form, SharedLook{*this, cursors_, fonts_, dispatcher_, scale_, largest_}, style, owner,
        [this, &form] { user_closes(form); });
    FormWindow& window = *windows_[&form];
    // It comes up with its opacity.
    if (style & WS_EX_LAYERED)
        ::SetLayeredWindowAttributes(window.handle(), 0, styles_.alpha(form), LWA_ALPHA);
    return window;
}

void WindowsToolkit::user_closes(Form& form)
{
    Unload(*this, form);
    dispatcher_.sync_all();
}

void WindowsToolkit::Show(Form& form)
{
    FormWindow& window = make_window(form, nullptr);
    dispatcher_.sync_all();
    window.bring_up();
}

void WindowsToolkit::ShowModal(Form& form)
{
    const std::vector<HWND> others = disable_all(windows_);
    FormWindow& window = make_window(form, GetActiveWindow());
    // Before the window goes: the system would activate another program's if it found none.
    window.going = [&others] {
        for (const HWND other : others)
            EnableWindow(other, TRUE);
    };
    Show(form);
    MSG message;
    while (window_of(form) == &window && GetMessageW(&message, nullptr, 0, 0) > 0)
        dispatch(message);
}

void WindowsToolkit::Hide(Form& form)
{
    styles_.forget(form);
    const auto found = windows_.find(&form);
    if (found == windows_.end())
        return;
    std::unique_ptr<FormWindow> window = std::move(found->second);
    windows_.erase(found);
    window->close_down();
    // An event of one of its controls may still run.
    closed_.push_back({depth_, std::move(window)});
    // Whoever waits for the next event sees now that the window has gone.
    PostThreadMessageW(GetCurrentThreadId(), WM_NULL, 0, 0);
}

/// Windows of which no event can run any more go.
void WindowsToolkit::forget_closed()
{
    std::erase_if(closed_, [this](const Closed& closed) { return closed.depth > depth_; });
}

void WindowsToolkit::dispatch(const MSG& message)
{
    ++depth_;
    TranslateMessage(&message);
    DispatchMessageW(&message);
    --depth_;
    forget_closed();
}

void WindowsToolkit::Refresh(Form& form)
{
    dispatcher_.sync_all();
    if (const FormWindow* window = window_of(form))
        RedrawWindow(window->handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void WindowsToolkit::DoEvents()
{
    dispatcher_.sync_all();
    std::vector<std::pair<HWND, WPARAM>> ticked;
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_TIMER) {
            // It was not pending at first. Its next tick comes as well, and this might go on for
            // ever.
            const std::pair timer(message.hwnd, message.wParam);
            if (std::ranges::find(ticked, timer) != ticked.end())
                break;
            ticked.push_back(timer);
        }
        dispatch(message);
    }
}

void WindowsToolkit::popup(Form& form, PopupMenu& menu, std::optional<Point> at,
                           const MenuItem* bold)
{
    FormWindow* window = window_of(form);
    if (!window)
        return;
    if (const auto keyboard = std::exchange(window->events().menu_point, std::nullopt); !at)
        at = keyboard;
    POINT place{};
    if (at) {
        place = {window->scale().to_screen(at->x), window->scale().to_screen(at->y)};
        ClientToScreen(window->handle(), &place);
    } else {
        GetCursorPos(&place);
    }
    window->pop_up({&menu, place, bold});
}

void WindowsToolkit::SetFocus(Form& form, const void* control)
{
    if (FormWindow* window = window_of(form))
        window->wish_focus(place_of(form, form.entry_of(control)));
}

void WindowsToolkit::announce(Form& form, const std::string& text)
{
    if (FormWindow* window = window_of(form))
        window->announce(text);
}

void WindowsToolkit::set_screen_cursor(MouseCursor cursor)
{
    cursors_.screen = cursor;
    SetCursor(cursors_.get(cursor));
    if (cursor != MouseCursor::Default)
        return;
    // The system asks for a control's own only when the mouse moves.
    POINT mouse{};
    GetCursorPos(&mouse);
    const HWND under = WindowFromPoint(mouse);
    if (under && GetWindowThreadProcessId(under, nullptr) == GetCurrentThreadId())
        SendMessageW(under, WM_SETCURSOR, reinterpret_cast<WPARAM>(under),
                     MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
}

std::int32_t WindowsToolkit::GetWindowLongA(const Form& form, int index)
{
    const FormWindow* window = window_of(form);
    return window ? ::GetWindowLongA(window->handle(), index) : styles_.get(form, index);
}

void WindowsToolkit::SetWindowLongA(Form& form, int index, std::int32_t value)
{
    const FormWindow* window = window_of(form);
    if (!window) {
        styles_.set(form, index, value);
        return;
    }
    const std::int32_t before = ::SetWindowLongA(window->handle(), index, value);
    // A layered window is not seen before it has an opacity.
    if (index == extended_style_index && (~before & value & layered_style) != 0)
        ::SetLayeredWindowAttributes(window->handle(), 0, WindowStyles::opaque, LWA_ALPHA);
}

void WindowsToolkit::SetLayeredWindowAttributes(Form& form, Colour key, std::uint8_t alpha,
                                                std::uint32_t flags)
{
    if (const FormWindow* window = window_of(form))
        ::SetLayeredWindowAttributes(window->handle(), key, alpha, flags);
    else
        styles_.set_alpha(form, alpha, flags);
}

int WindowsToolkit::run()
{
    MSG message;
    while (!windows_.empty() && GetMessageW(&message, nullptr, 0, 0) > 0)
        dispatch(message);
    return 0;
}

/// The system keeps what the program has copied.
void WindowsToolkit::prepare_end() {}

} // namespace ostrelum::windows_platform
