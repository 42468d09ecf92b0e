#pragma once

#include "platform/toolkit/Form.h"

#include <optional>

/// Where the controls of a form are. A control is named by its place in Form::controls.
namespace ostrelum::inline toolkit {

/// The form itself, where a place in Form::controls is asked for.
inline constexpr int form_itself = -1;

struct Area {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    bool operator==(const Area&) const = default;

    bool contains(Point point) const
    {
        return point.x >= left && point.x < left + width && point.y >= top &&
               point.y < top + height;
    }
    /// As a window system has it: of an even number of pixels, the one before the middle.
    Point middle() const { return {left + (width - 1) / 2, top + (height - 1) / 2}; }
};

const ControlEntry& entry_at(const Form& form, int control);
/// The name by which the events of a control, or of the form itself, find their handlers.
std::string_view name_of(const Form& form, int control);
int place_of(const Form& form, const ControlEntry& entry);
/// The pixels that a line covers. Its end point is not part of it, save where that would leave
/// nothing.
Area area_of(const Line& line);
/// What a control covers of the box or the client area that holds it; nothing for menus and
/// timers.
std::optional<Area> area_in_container(const ControlEntry& entry);
/// What a control covers of the client area, or all of it for the form itself.
Area area_on_form(const Form& form, int control);
/// Whether a control and all that holds it are visible.
bool is_visible(const Form& form, int control);

} // namespace ostrelum::inline toolkit
