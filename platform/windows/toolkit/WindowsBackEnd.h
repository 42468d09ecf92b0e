#pragma once

#include "platform/system/Clipboard.h"
#include "platform/system/SaveDialog.h"
#include "platform/toolkit/Toolkit.h"

#include <memory>

/// The window toolkit on the system's own controls, and what goes with it. No type of the system
/// passes through here.
namespace ostrelum::windows_platform {

/// What the program itself gives to the toolkit.
struct WindowsLook {
    /// The mouse cursor of a hand, 32 by 32 pixels; without it the system's own hand is used.
    Picture hand;
    /// Pixel of the hand that points.
    Point hot_spot;
    /// Size of the largest window, which a small screen is to hold; 0 for nothing to care about.
    int window_width = 0;
    int window_height = 0;
};

std::unique_ptr<Toolkit> make_windows_toolkit(const WindowsLook& look);
std::unique_ptr<Clipboard> make_windows_clipboard();
std::unique_ptr<SaveDialog> make_windows_save_dialog();

} // namespace ostrelum::windows_platform
