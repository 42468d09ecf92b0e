#include "platform/qt/Keyboard.h"

#include <QPushButton>

namespace ostrelum::qt_platform {
Keyboard::Keyboard(QWidget& window, const ControlBindings& bindings, const WindowContext& context)
    : window_(window), bindings_(bindings), context_(context), frame_(window)
{
}

QWidget* Keyboard::widget(int place) const
{
    const auto& binding = bindings_.at(static_cast<std::size_t>(place));
    return binding ? binding->widget() : nullptr;
}

const ControlEntry& Keyboard::entry(int place) const
{
    return context_.form.controls.at(static_cast<std::size_t>(place));
}

int Keyboard::focused() const
{
    const QWidget* focus = window_.focusWidget();
    for (int place = 0; focus && place < static_cast<int>(bindings_.size()); ++place) {
        if (widget(place) == focus)
            return place;
    }
    return -1;
}

void Keyboard::set_in_use(bool in_use)
{
    in_use_ = in_use;
    show_focus();
}

void Keyboard::show_focus()
{
    const QWidget* focus = window_.focusWidget();
    frame_.follow(in_use_ && focus != &window_ ? focus : nullptr);
}

bool Keyboard::key(const QKeyEvent& key)
{
    switch (key.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End: return move_focus(key.key());
    case Qt::Key_Return:
    case Qt::Key_Enter: return key.isAutoRepeat() || enter();
    case Qt::Key_Space: return key.isAutoRepeat() || press_focused(LeftButton);
    case Qt::Key_Escape: return press_button(&CommandButton::Cancel);
    case Qt::Key_Menu: return menu_key();
    case Qt::Key_F10: return key.modifiers() & Qt::ShiftModifier && menu_key();
    default: return false;
    }
}

bool Keyboard::enter()
{
    // A box is ticked by Space: Enter goes to the default button.
    if (auto* button = qobject_cast<QPushButton*>(window_.focusWidget())) {
        button->click();
        return true;
    }
    return press_focused(LeftButton) || press_button(&CommandButton::Default);
}

bool Keyboard::press_focused(int button)
{
    const int place = focused();
    if (place < 0)
        return false;
    set_in_use(true);
    const bool pressed = bindings_[static_cast<std::size_t>(place)]->press(button);
    context_.dispatcher.keyboard_point.reset();
    return pressed;
}

bool Keyboard::press_button(bool CommandButton::*mark) const
{
    for (int place = 0; place < static_cast<int>(bindings_.size()); ++place) {
        const auto* control = std::get_if<CommandButton*>(&entry(place).control);
        auto* button = qobject_cast<QAbstractButton*>(widget(place));
        if (control && button && (*control)->*mark && button->isVisible() && button->isEnabled()) {
            button->click();
            return true;
        }
    }
    return false;
}

/// The menu of the control with the focus; if it has none, that of the form.
bool Keyboard::menu_key()
{
    const int place = focused();
    std::optional<QPoint>& point = context_.dispatcher.keyboard_point;
    const bool pressed =
        place >= 0 && bindings_[static_cast<std::size_t>(place)]->press(RightButton);
    if (pressed && !point)
        return true;
    const QPoint middle = window_.rect().center();
    point = window_.mapToGlobal(middle);
    context_.dispatcher.raise(
        context_.form, nullptr,
        {.kind = EventKind::MouseDown, .button = RightButton, .x = middle.x(), .y = middle.y()});
    point.reset();
    return true;
}

bool Keyboard::is_neighbour(int from, int to) const
{
    const QWidget* candidate = widget(to);
    return entry(from).index > 0 && entry(from).name == entry(to).name && candidate &&
           candidate->isVisible() && candidate->focusPolicy() & Qt::TabFocus;
}

bool Keyboard::move_focus(int key)
{
    const int from = focused();
    if (from < 0)
        return false;
    const int count = static_cast<int>(bindings_.size());
    const bool forward = key == Qt::Key_Down || key == Qt::Key_Home;
    const int step = forward ? 1 : -1;
    int place = key == Qt::Key_Home ? 0 : key == Qt::Key_End ? count - 1 : from + step;
    while (place >= 0 && place < count && !is_neighbour(from, place))
        place += step;
    if (place < 0 || place >= count)
        return false;
    widget(place)->setFocus(Qt::TabFocusReason);
    set_in_use(true);
    return true;
}

} // namespace ostrelum::qt_platform
