#include "platform/toolkit/Reading.h"
#include "platform/windows/toolkit/Accessible.h"
#include "platform/windows/toolkit/FormWindow.h"
#include "platform/windows/toolkit/Keys.h"

#include <windowsx.h>

/// What of a form's window the user's hands do.
namespace ostrelum::windows_platform {
namespace {

/// The message tells of a key that was down before.
bool is_repeated(const Message& message)
{
    constexpr LPARAM was_down = 1 << 30;
    return (message.second & was_down) != 0;
}

bool tells_of_press(UINT number)
{
    return number != WM_LBUTTONUP && number != WM_RBUTTONUP && number != WM_MBUTTONUP;
}

} // namespace

std::optional<LRESULT> FormWindow::answer(int control, const Message& message)
{
    switch (message.number) {
    case WM_SETCURSOR:
        if (LOWORD(message.second) != HTCLIENT)
            return std::nullopt;
        SetCursor(look_.cursors.get(look_.cursors.screen == MouseCursor::Default
                                        ? cursor_over(control)
                                        : look_.cursors.screen));
        return TRUE;
    case WM_CAPTURECHANGED:
        // It comes, too, when the window that has the mouse takes it once more.
        if (!releasing_ && reinterpret_cast<HWND>(message.second) != window(control))
            mouse_.let_go();
        return std::nullopt;
    // The wheel changes a control that has the focus alone: the mouse may only rest over it.
    case WM_MOUSEWHEEL:
        return is_input(control) && control != focus_ ? std::optional(0) : std::nullopt;
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN: return answer_key(control, message);
    // Menus come from presses of the mouse and from answer_key().
    case WM_CONTEXTMENU: return 0;
    // Alt, pressed and let go alone, is another way to the options; with a letter it is not ours.
    case WM_SYSCOMMAND:
        if ((message.first & 0xFFF0) != SC_KEYMENU || message.second != 0)
            return std::nullopt;
        keyboard_.key(Key::F10, 0, false);
        return 0;
    case WM_SETFOCUS: focus_came(control); return std::nullopt;
    case WM_COMMAND:
    case WM_HSCROLL: return answer_child(message);
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORSTATIC:
        return colours_under(reinterpret_cast<HWND>(message.second),
                             reinterpret_cast<HDC>(message.first));
    case WM_GETOBJECT:
    case what_is_spoken:
    case press_control:
        return control == form_itself ? answer_reader_of_form(message)
                                      : answer_reader(control, message);
    default: return answer_mouse(control, message);
    }
}

bool FormWindow::is_input(int control) const
{
    if (control == form_itself)
        return false;
    const ControlWindow* made = control_window(control);
    return made && made->is_input();
}

MouseCursor FormWindow::cursor_over(int control) const
{
    const auto own = [&] {
        if (control == form_itself)
            return form_.MousePointer;
        return std::visit(
            [](const auto* data) {
                if constexpr (requires { data->MousePointer; })
                    return data->MousePointer;
                else
                    return MouseCursor::Arrow;
            },
            entry_at(form_, control).control);
    };
    // Default is that of what holds the control.
    while (own() == MouseCursor::Default && control != form_itself)
        control = entry_at(form_, control).container;
    return own();
}

Point FormWindow::point_on_form(int control, LPARAM second) const
{
    POINT at{GET_X_LPARAM(second), GET_Y_LPARAM(second)};
    MapWindowPoints(window(control), handle(), &at, 1);
    return {scale_.to_form(at.x), scale_.to_form(at.y)};
}

std::optional<LRESULT> FormWindow::answer_mouse(int control, const Message& message)
{
    if (const int button = button_of(message.number))
        return tells_of_press(message.number) ? press(control, button, message)
                                              : let_go(control, button, message);
    if (message.number == WM_MOUSEMOVE && !is_input(control))
        mouse_.moved(control, buttons_of(message.first), shift_state(),
                     point_on_form(control, message.second));
    return std::nullopt;
}

std::optional<LRESULT> FormWindow::press(int control, int button, const Message& message)
{
    keyboard_.set_in_use(false);
    const Point at = point_on_form(control, message.second);
    // The system gives what is pressed on a disabled window to the one that holds it.
    const int under = control_at(form_, at);
    if (is_input(under) && !takes_focus(form_, under))
        return 0;
    int focus = control;
    while (focus != form_itself && !takes_focus(form_, focus))
        focus = entry_at(form_, focus).container;
    set_focus(focus);
    if (is_input(control) && button == left_button)
        return std::nullopt;
    SetCapture(window(control));
    mouse_.button_down(control, button, shift_state(), at);
    return 0;
}

std::optional<LRESULT> FormWindow::let_go(int control, int button, const Message& message)
{
    if (is_input(control) && button == left_button)
        return std::nullopt;
    const Point at = point_on_form(control, message.second);
    if (buttons_of(message.first) == 0) {
        releasing_ = true;
        ReleaseCapture();
        releasing_ = false;
    }
    mouse_.button_up(button, shift_state(), at);
    return 0;
}

std::optional<LRESULT> FormWindow::answer_key(int control, const Message& message)
{
    const Key key = key_of(message.first);
    // With Alt the system's own keys come, and F10 as well.
    if (message.number == WM_SYSKEYDOWN && key != Key::F10)
        return std::nullopt;
    if (control != form_itself && control_window(control)->wants(key))
        return std::nullopt;
    if (keyboard_.key(key, shift_state(), is_repeated(message)))
        return 0;
    return std::nullopt;
}

/// What a control's window tells the one that holds it.
std::optional<LRESULT> FormWindow::answer_child(const Message& message)
{
    const HWND child = reinterpret_cast<HWND>(message.second);
    const int control = child ? GetDlgCtrlID(child) - 1 : form_itself;
    if (control < 0 || control >= static_cast<int>(controls_.size()) || window(control) != child)
        return std::nullopt;
    const WORD code = message.number == WM_HSCROLL ? LOWORD(message.first) : HIWORD(message.first);
    control_window(control)->told(code);
    return 0;
}

void FormWindow::focus_came(int control)
{
    if (control != form_itself && takes_focus(form_, control))
        focus_ = control;
    // The system activates the window; the control that had the keyboard gets it back.
    else if (control == form_itself && focus_ != form_itself && takes_focus(form_, focus_))
        SetFocus(window(focus_));
}

void FormWindow::set_focus(int control)
{
    focus_ = control;
    if (GetActiveWindow() == handle())
        SetFocus(window(control));
}

void FormWindow::mark(int control)
{
    if (control == form_itself)
        focus_frame_.follow(nullptr, {}, scale_);
    else
        focus_frame_.follow(window(control), scale_.to_screen(area_of_reading(form_, control)),
                            scale_);
}

int FormWindow::marked() const
{
    const HWND followed = focus_frame_.followed();
    return followed ? GetDlgCtrlID(followed) - 1 : form_itself;
}

} // namespace ostrelum::windows_platform
