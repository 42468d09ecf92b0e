#include "platform/toolkit/KeyboardInput.h"

namespace ostrelum::inline toolkit {
namespace {

const CommandButton* button_at(const Form& form, int control)
{
    if (control == form_itself || !takes_focus(form, control))
        return nullptr;
    auto* const* button = std::get_if<CommandButton*>(&entry_at(form, control).control);
    return button ? *button : nullptr;
}

} // namespace

void KeyboardInput::set_in_use(bool in_use)
{
    in_use_ = in_use;
    show_focus();
}

void KeyboardInput::show_focus()
{
    view_.mark(in_use_ ? view_.focused() : form_itself);
}

int KeyboardInput::focus_after_change()
{
    const int wished = std::exchange(wished_, form_itself);
    if (wished != form_itself && takes_focus(events_.form(), wished))
        return wished;
    return toolkit::focus_after_change(events_.form(), view_.focused());
}

bool KeyboardInput::key(Key key, int shift, bool repeated)
{
    const Form& form = events_.form();
    switch (key) {
    case Key::Tab: return move_focus(next_by_tab(form, view_.focused(), (shift & shift_key) == 0));
    case Key::Up:
    case Key::Down:
    case Key::Left:
    case Key::Right:
    case Key::Home:
    case Key::End: return move_focus(next_by_arrow(form, view_.focused(), key));
    case Key::Enter: return repeated || enter();
    case Key::Space: return repeated || press_focused();
    case Key::Escape: return click_button(&CommandButton::Cancel);
    case Key::Menu: return menu_key();
    case Key::F10:
        if ((shift & shift_key) != 0)
            return menu_key();
        break;
    default: break;
    }
    return is_shortcut(key, shift) && shortcut(key, shift, repeated);
}

bool KeyboardInput::is_shortcut(Key key, int shift)
{
    switch (key) {
    case Key::F5:
    case Key::F10: return (shift & shift_key) == 0;
    case Key::C:
    case Key::Q: return (shift & control_key) != 0;
    default: return false;
    }
}

/// For the control with the focus if it listens, else for the form.
bool KeyboardInput::shortcut(Key key, int shift, bool repeated)
{
    const Form& form = events_.form();
    int target = view_.focused();
    if (!form.listens(name_of(form, target), EventKind::KeyDown))
        target = form_itself;
    if (!form.listens(name_of(form, target), EventKind::KeyDown))
        return false;
    if (!repeated)
        events_.raise(target, {.kind = EventKind::KeyDown, .shift = shift, .key = key});
    return true;
}

bool KeyboardInput::move_focus(int control)
{
    if (control == form_itself)
        return false;
    view_.set_focus(control);
    set_in_use(true);
    return true;
}

bool KeyboardInput::enter()
{
    // A box is ticked by Space: Enter goes to the default button.
    if (button_at(events_.form(), view_.focused())) {
        events_.raise(view_.focused(), {.kind = EventKind::Click});
        return true;
    }
    return press_focused() || click_button(&CommandButton::Default);
}

bool KeyboardInput::press_focused()
{
    const int control = view_.focused();
    if (control != form_itself)
        set_in_use(true);
    if (!is_pressable(events_.form(), control))
        return false;
    mouse_.press(control, left_button);
    return true;
}

bool KeyboardInput::click_button(bool CommandButton::*mark)
{
    for (int control = 0; control < static_cast<int>(events_.form().controls.size()); ++control) {
        const CommandButton* button = button_at(events_.form(), control);
        if (button && button->*mark) {
            events_.raise(control, {.kind = EventKind::Click});
            return true;
        }
    }
    return false;
}

/// The menu of the control with the focus; if it has none, that of the form.
bool KeyboardInput::menu_key()
{
    const Form& form = events_.form();
    const int control = view_.focused();
    if (is_pressable(form, control) && mouse_.press(control, right_button))
        return true;
    const Point middle = area_on_form(form, form_itself).middle();
    events_.menu_point = middle;
    events_.raise(
        form_itself,
        {.kind = EventKind::MouseDown, .button = right_button, .x = middle.x, .y = middle.y});
    events_.menu_point.reset();
    return true;
}

} // namespace ostrelum::inline toolkit
