#include "tests/platform/windows/toolkit/WindowsDriver.h"

#include "tests/platform/toolkit/conformance/Conformance.h"

#include <algorithm>

namespace ostrelum::windows_platform {
namespace {

using namespace conformance;

constexpr std::pair<Key, WPARAM> keys[] = {{Key::Tab, VK_TAB},
                                           {Key::Up, VK_UP},
                                           {Key::Down, VK_DOWN},
                                           {Key::Left, VK_LEFT},
                                           {Key::Right, VK_RIGHT},
                                           {Key::Home, VK_HOME},
                                           {Key::End, VK_END},
                                           {Key::PageUp, VK_PRIOR},
                                           {Key::PageDown, VK_NEXT},
                                           {Key::Enter, VK_RETURN},
                                           {Key::Space, VK_SPACE},
                                           {Key::Escape, VK_ESCAPE},
                                           {Key::Menu, VK_APPS},
                                           {Key::F10, VK_F10},
                                           {Key::F5, VK_F5},
                                           {Key::C, 'C'},
                                           {Key::Q, 'Q'}};

struct ButtonMessages {
    int button;
    UINT down;
    UINT up;
    WPARAM held;
};
constexpr ButtonMessages buttons[] = {{left_button, WM_LBUTTONDOWN, WM_LBUTTONUP, MK_LBUTTON},
                                      {right_button, WM_RBUTTONDOWN, WM_RBUTTONUP, MK_RBUTTON},
                                      {middle_button, WM_MBUTTONDOWN, WM_MBUTTONUP, MK_MBUTTON}};

const ButtonMessages& messages_of(int button)
{
    return *std::ranges::find(buttons, button, &ButtonMessages::button);
}

void hold_keys(int shift)
{
    BYTE state[256]{};
    constexpr int held_keys[] = {VK_SHIFT, VK_CONTROL, VK_MENU};
    for (int i = 0; i < 3; ++i)
        state[held_keys[i]] = BYTE{(shift & 1 << i) != 0 ? BYTE{0x80} : BYTE{0}};
    SetKeyboardState(state);
}

LPARAM packed(POINT at)
{
    return MAKELPARAM(at.x, at.y);
}

/// The window that gets what the mouse does at a point of the screen: the topmost that is there,
/// enabled, and does not let it through.
HWND hit(HWND window, POINT at)
{
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        RECT place{};
        GetWindowRect(child, &place);
        if (IsWindowVisible(child) && IsWindowEnabled(child) && PtInRect(&place, at) &&
            SendMessageW(child, WM_NCHITTEST, 0, packed(at)) != HTTRANSPARENT)
            return hit(child, at);
    }
    return window;
}

/// The pixel of a scroll bar to which its thumb's left edge has to go for a value, from where it
/// is.
int way_of_thumb(HWND bar, int value)
{
    SCROLLBARINFO about{};
    about.cbSize = sizeof about;
    GetScrollBarInfo(bar, OBJID_CLIENT, &about);
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    GetScrollInfo(bar, SB_CTL, &info);
    const int arrow = ::GetSystemMetrics(SM_CXHSCROLL);
    const int thumb = about.xyThumbBottom - about.xyThumbTop;
    const int track = width_of(about.rcScrollBar) - 2 * arrow - thumb;
    const int range = info.nMax - info.nMin - static_cast<int>(info.nPage) + 1;
    return arrow + MulDiv(value - info.nMin, track, range) - about.xyThumbTop;
}

} // namespace

void WindowsDriver::mouse(Form& form, Point at, UINT message, int held)
{
    const FormWindow* shown = toolkit_.window_of(form);
    if (!shown || !IsWindowEnabled(shown->handle()))
        return;
    POINT point{at.x, at.y};
    ClientToScreen(shown->handle(), &point);
    const HWND captured = GetCapture();
    const HWND target = captured ? captured : hit(shown->handle(), point);
    ScreenToClient(target, &point);
    WPARAM state = 0;
    for (const ButtonMessages& each : buttons)
        state |= (held & each.button) != 0 ? each.held : 0;
    SendMessageW(target, message, state, packed(point));
    events_.run();
}

void WindowsDriver::button_down(Form& form, Point at, int button, int shift)
{
    hold_keys(shift);
    held_ |= button;
    mouse(form, at, messages_of(button).down, held_);
}

void WindowsDriver::button_up(Form& form, Point at, int button, int shift)
{
    hold_keys(shift);
    held_ &= ~button;
    // A menu that is up gets it.
    if (const HWND menu = EventFiber::menu())
        PostMessageW(menu, messages_of(button).up, 0, 0);
    else
        mouse(form, at, messages_of(button).up, held_);
}

void WindowsDriver::move_mouse(Form& form, Point at)
{
    mouse(form, at, WM_MOUSEMOVE, held_);
}

void WindowsDriver::press_key(Form& form, Key key, int shift)
{
    hold_keys(shift);
    const WPARAM code = std::ranges::find(keys, key, &std::pair<Key, WPARAM>::first)->second;
    const UINT down = key == Key::F10 ? WM_SYSKEYDOWN : WM_KEYDOWN;
    const UINT up = key == Key::F10 ? WM_SYSKEYUP : WM_KEYUP;
    const HWND target = window(form).window(window(form).focused());
    SendMessageW(target, down, code, 1);
    if (toolkit_.window_of(form))
        SendMessageW(target, up, code, 1);
    events_.run();
    hold_keys(0);
}

/// The bar's own loop takes what lies in the queue.
void WindowsDriver::drag(Form& form, const ScrollBar& bar, const std::vector<int>& values)
{
    const HWND slider = window(form).window(place_of(form, form.entry_of(&bar)));
    SCROLLBARINFO about{};
    about.cbSize = sizeof about;
    GetScrollBarInfo(slider, OBJID_CLIENT, &about);
    POINT at{(about.xyThumbTop + about.xyThumbBottom) / 2, bar.Height / 2};
    const LPARAM start = packed(at);
    for (const int value : values) {
        const POINT there{at.x + way_of_thumb(slider, value), at.y};
        PostMessageW(slider, WM_MOUSEMOVE, MK_LBUTTON, packed(there));
    }
    PostMessageW(slider, WM_LBUTTONUP, 0,
                 packed({at.x + way_of_thumb(slider, values.back()), at.y}));
    SendMessageW(slider, WM_LBUTTONDOWN, MK_LBUTTON, start);
    events_.run();
}

void WindowsDriver::close(Form& form)
{
    SendMessageW(window(form).handle(), WM_SYSCOMMAND, SC_CLOSE, 0);
    events_.run();
}

void WindowsDriver::choose(Form&, const MenuItem* entry)
{
    const HWND menu_window = EventFiber::menu();
    const auto press = [&](WPARAM code) { PostMessageW(menu_window, WM_KEYDOWN, code, 1); };
    const std::vector<MenuEntry> entries = menu();
    for (const MenuEntry& each : entries) {
        if (!entry || each.caption == "-")
            continue;
        press(VK_DOWN);
        if (each.caption == entry->Caption)
            break;
    }
    if (entry) {
        press(VK_RETURN);
        let_time_pass(50);
    }
    if (EventFiber::menu()) {
        press(VK_ESCAPE);
        wait_for([] { return !EventFiber::menu(); });
    }
    events_.run();
}

void WindowsDriver::let_time_pass(int milliseconds)
{
    const int end = now() + milliseconds;
    while (now() < end) {
        events_.run();
        Sleep(1);
    }
}

bool WindowsDriver::wait_for(const std::function<bool()>& condition)
{
    const int end = now() + 5000;
    while (!condition() && now() < end) {
        events_.run();
        Sleep(1);
    }
    return condition();
}

} // namespace ostrelum::windows_platform

namespace ostrelum::conformance {
namespace {

std::unique_ptr<Driver> make_windows_driver()
{
    return std::make_unique<windows_platform::WindowsDriver>();
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Toolkit, Conformance,
                         testing::Values(BackEnd{"Windows", make_windows_driver}));

} // namespace ostrelum::conformance
