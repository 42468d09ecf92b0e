#include "platform/qt/Keys.h"

namespace ostrelum::qt_platform {

Key key_of(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Up: return Key::Up;
    case Qt::Key_Down: return Key::Down;
    case Qt::Key_Left: return Key::Left;
    case Qt::Key_Right: return Key::Right;
    case Qt::Key_Home: return Key::Home;
    case Qt::Key_End: return Key::End;
    case Qt::Key_Return:
    case Qt::Key_Enter: return Key::Enter;
    case Qt::Key_Space: return Key::Space;
    case Qt::Key_Escape: return Key::Escape;
    case Qt::Key_Menu: return Key::Menu;
    case Qt::Key_F5: return Key::F5;
    case Qt::Key_F10: return Key::F10;
    case Qt::Key_C: return Key::C;
    case Qt::Key_Q: return Key::Q;
    default: return Key::Other;
    }
}

int number_of(Qt::MouseButtons buttons)
{
    return (buttons & Qt::LeftButton ? left_button : 0) |
           (buttons & Qt::RightButton ? right_button : 0) |
           (buttons & Qt::MiddleButton ? middle_button : 0);
}

int number_of(Qt::KeyboardModifiers modifiers)
{
    return (modifiers & Qt::ShiftModifier ? 1 : 0) | (modifiers & Qt::ControlModifier ? 2 : 0) |
           (modifiers & Qt::AltModifier ? 4 : 0);
}

} // namespace ostrelum::qt_platform
