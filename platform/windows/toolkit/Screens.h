#pragma once

#include "platform/windows/toolkit/Scale.h"

/// Screens and their scales. Windows before 10 knows one scale for all of them.
namespace ostrelum::windows_platform {

Scale scale_of_window(HWND window);
Scale scale_of_screen(HMONITOR screen);

/// The scale of a screen, or a smaller one at which a window whose form has that size fits on it,
/// together with its frame; no smaller than its letters can be read. A size of 0 fits anywhere.
Scale fitting_scale(Scale of_screen, HMONITOR screen, SIZE form);

/// How large a window is with its frame, for a client area of that size.
SIZE size_with_frame(SIZE client, DWORD style, DWORD extended_style, Scale scale);

/// The part of a screen that no bar of the desktop takes.
RECT free_part_of(HMONITOR screen);

} // namespace ostrelum::windows_platform
