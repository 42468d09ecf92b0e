#include "platform/toolkit/MouseInput.h"

#include <algorithm>
#include <array>

namespace ostrelum::inline toolkit {
namespace {

bool has_listener(const Form& form, int control)
{
    constexpr std::array kinds{EventKind::Click, EventKind::MouseDown, EventKind::MouseUp,
                               EventKind::MouseMove};
    return std::ranges::any_of(
        kinds, [&](EventKind kind) { return form.listens(name_of(form, control), kind); });
}

bool takes_mouse(const Form& form, int control)
{
    return !std::holds_alternative<Line*>(entry_at(form, control).control) &&
           is_visible(form, control);
}

/// The topmost control of a container under a point of the client area; the container itself where
/// there is none.
int topmost_in(const Form& form, int container, Point point)
{
    for (int control = static_cast<int>(form.controls.size()) - 1; control >= 0; --control) {
        if (entry_at(form, control).container == container && takes_mouse(form, control) &&
            area_on_form(form, control).contains(point))
            return topmost_in(form, control, point);
    }
    return container;
}

} // namespace

int control_at(const Form& form, Point point)
{
    return topmost_in(form, form_itself, point);
}

int mouse_target(const Form& form, int control)
{
    while (control != form_itself && !has_listener(form, control))
        control = entry_at(form, control).container;
    return control;
}

void MouseInput::raise(EventKind kind, int target, int button, int shift, Point at)
{
    const Area area = area_on_form(events_.form(), target);
    events_.raise(target, {.kind = kind,
                           .button = button,
                           .shift = shift,
                           .x = at.x - area.left,
                           .y = at.y - area.top});
}

void MouseInput::button_down(int control, int button, int shift, Point at)
{
    if (held_ == 0)
        captured_ = mouse_target(events_.form(), control);
    held_ |= button;
    raise(EventKind::MouseDown, captured_, button, shift, at);
}

void MouseInput::button_up(int button, int shift, Point at)
{
    if ((held_ & button) == 0)
        return;
    held_ &= ~button;
    const int target = captured_;
    raise(EventKind::MouseUp, target, button, shift, at);
    if (button == left_button && area_on_form(events_.form(), target).contains(at))
        raise(EventKind::Click, target, button, shift, at);
}

void MouseInput::moved(int control, int buttons, int shift, Point at)
{
    const Form& form = events_.form();
    const int target = held_ != 0 ? captured_ : mouse_target(form, control);
    // The mouse moves often: no walk where nobody listens.
    if (form.listens(name_of(form, target), EventKind::MouseMove))
        raise(EventKind::MouseMove, target, buttons, shift, at);
}

bool MouseInput::press(int control, int button)
{
    const Point middle = area_on_form(events_.form(), control).middle();
    const int target = mouse_target(events_.form(), control);
    events_.menu_point = middle;
    raise(EventKind::MouseDown, target, button, 0, middle);
    raise(EventKind::MouseUp, target, button, 0, middle);
    if (button == left_button)
        raise(EventKind::Click, target, button, 0, middle);
    return !std::exchange(events_.menu_point, std::nullopt);
}

} // namespace ostrelum::inline toolkit
