#pragma once

#include "platform/qt/ControlBinding.h"
#include "platform/qt/FocusFrame.h"

#include <QKeyEvent>

#include <vector>

namespace ostrelum::qt_platform {

/// The bindings of a form, at the places of its controls.
using ControlBindings = std::vector<std::unique_ptr<ControlBinding>>;

/// What keys do in a form's window beyond what its widgets do with them.
class Keyboard {
public:
    Keyboard(QWidget& window, const ControlBindings& bindings, const WindowContext& context);

    /// A key that no widget wanted. False if it means nothing here either.
    bool key(const QKeyEvent& key);
    /// The user works with the keyboard, or with the mouse: only the first sees where the focus is.
    void set_in_use(bool in_use);
    /// Puts the frame where the focus is now.
    void show_focus();

private:
    bool menu_key();
    bool move_focus(int key);
    bool enter();
    bool press_focused(int button);
    /// Presses the first button to be seen that has the mark.
    bool press_button(bool CommandButton::*mark) const;
    /// Place of the control that has the focus; -1 for none.
    int focused() const;
    /// Whether the focus can move from control `from` to `to` by an arrow key.
    bool is_neighbour(int from, int to) const;
    QWidget* widget(int place) const;
    const ControlEntry& entry(int place) const;

    QWidget& window_;
    const ControlBindings& bindings_;
    const WindowContext context_;
    FocusFrame frame_;
    bool in_use_ = false;
};

} // namespace ostrelum::qt_platform
