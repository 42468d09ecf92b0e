#include "platform/windows/toolkit/Keys.h"

namespace ostrelum::windows_platform {

Key key_of(WPARAM code)
{
    switch (code) {
    case VK_TAB: return Key::Tab;
    case VK_UP: return Key::Up;
    case VK_DOWN: return Key::Down;
    case VK_LEFT: return Key::Left;
    case VK_RIGHT: return Key::Right;
    case VK_HOME: return Key::Home;
    case VK_END: return Key::End;
    case VK_PRIOR: return Key::PageUp;
    case VK_NEXT: return Key::PageDown;
    case VK_RETURN: return Key::Enter;
    case VK_SPACE: return Key::Space;
    case VK_ESCAPE: return Key::Escape;
    case VK_APPS: return Key::Menu;
    case VK_F5: return Key::F5;
    case VK_F10: return Key::F10;
    case 'C': return Key::C;
    case 'Q': return Key::Q;
    default: return Key::Other;
    }
}

int shift_state()
{
    const auto down = [](int key) { return GetKeyState(key) < 0; };
    return (down(VK_SHIFT) ? 1 : 0) | (down(VK_CONTROL) ? 2 : 0) | (down(VK_MENU) ? 4 : 0);
}

int button_of(UINT message)
{
    switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_LBUTTONUP: return left_button;
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
    case WM_RBUTTONUP: return right_button;
    case WM_MBUTTONDOWN:
    case WM_MBUTTONDBLCLK:
    case WM_MBUTTONUP: return middle_button;
    default: return 0;
    }
}

int buttons_of(WPARAM keys)
{
    return (keys & MK_LBUTTON ? left_button : 0) | (keys & MK_RBUTTON ? right_button : 0) |
           (keys & MK_MBUTTON ? middle_button : 0);
}

} // namespace ostrelum::windows_platform
