#pragma once

#include <string>

#include <windows.h>

#include <oleacc.h>

namespace ostrelum::windows_platform {

/// What a screen reader is told of a window, where the program knows better than the system does.
struct Spoken {
    std::wstring name;
    /// ROLE_SYSTEM_...
    LONG role = 0;
    /// STATE_SYSTEM_... to add to the system's own.
    LONG state = 0;
    /// What a slider stands at, or a list.
    std::wstring value;
    /// What a press does, such as "Press"; empty for nothing.
    std::wstring action;
};

/// Sent to a window: the second parameter is a Spoken to fill in. Answered with TRUE.
inline constexpr UINT what_is_spoken = WM_APP + 1;
/// Sent to a window: presses its control.
inline constexpr UINT press_control = WM_APP + 2;

/// The answer of a window to WM_GETOBJECT: the system's own object for a window of that class,
/// which asks the window for what it says. 0 if that cannot be had.
LRESULT accessible_object(HWND window, WPARAM flags);

} // namespace ostrelum::windows_platform
