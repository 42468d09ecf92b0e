#pragma once

namespace ostrelum::inline toolkit {

/// Keys that a form's window knows beyond what its controls do with keys. Letters are those of the
/// shortcuts, whatever the layout writes on them.
enum class Key {
    Other,
    Tab,
    Up,
    Down,
    Left,
    Right,
    Home,
    End,
    PageUp,
    PageDown,
    Enter,
    Space,
    Escape,
    Menu,
    F5,
    F10,
    C,
    Q,
};

/// Of the keys held down besides, as Event::shift has them.
inline constexpr int shift_key = 1;
inline constexpr int control_key = 2;

} // namespace ostrelum::inline toolkit
