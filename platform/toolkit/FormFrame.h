#pragma once

#include "platform/toolkit/Form.h"

namespace ostrelum::inline toolkit {

/// What of a form its window shows itself, beside the controls. A back end keeps a copy of what it
/// shows.
struct FormFrame {
    std::string Caption;
    int ClientWidth = 0;
    int ClientHeight = 0;
    Colour BackColor = white;
    std::array<Picture, 2> Icon;
    MouseCursor MousePointer = MouseCursor::Default;
    bool operator==(const FormFrame&) const = default;
};

inline FormFrame frame_of(const Form& form)
{
    return {form.Caption,   form.ClientWidth, form.ClientHeight,
            form.BackColor, form.Icon,        form.MousePointer};
}

} // namespace ostrelum::inline toolkit
