#pragma once

#include "platform/toolkit/ControlTree.h"

#include <windows.h>

namespace ostrelum::windows_platform {

/// From the pixels of a form, 96 to the inch, to those of a screen.
struct Scale {
    /// The screen's pixels to the inch, as the user set it up: 96 to 480.
    int dpi = USER_DEFAULT_SCREEN_DPI;

    bool operator==(const Scale&) const = default;

    int to_screen(int pixels) const { return MulDiv(pixels, dpi, USER_DEFAULT_SCREEN_DPI); }
    /// The pixel of the form that covers one of the screen.
    int to_form(int pixels) const
    {
        const int scaled = pixels * USER_DEFAULT_SCREEN_DPI;
        return scaled >= 0 ? scaled / dpi : -((dpi - 1 - scaled) / dpi);
    }
    /// So many that the screen's fit in.
    int room_on_form(int pixels) const
    {
        return (pixels * USER_DEFAULT_SCREEN_DPI + dpi - 1) / dpi;
    }
    /// Edges go to their own pixels, so that boxes side by side stay so. Nothing gets too thin to
    /// be seen.
    RECT to_screen(const Area& area) const
    {
        RECT place{to_screen(area.left), to_screen(area.top), to_screen(area.left + area.width),
                   to_screen(area.top + area.height)};
        if (area.width > 0 && place.right == place.left)
            ++place.right;
        if (area.height > 0 && place.bottom == place.top)
            ++place.bottom;
        return place;
    }
};

inline int width_of(const RECT& place)
{
    return place.right - place.left;
}
inline int height_of(const RECT& place)
{
    return place.bottom - place.top;
}

} // namespace ostrelum::windows_platform
