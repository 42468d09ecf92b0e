#pragma once

#include "platform/system/Browser.h"
#include "platform/system/Clipboard.h"
#include "platform/system/SaveDialog.h"
#include "platform/system/Screens.h"
#include "platform/toolkit/Toolkit.h"

#include <memory>
#include <string>

/// The window toolkit on Qt 6 Widgets, and the services that come with the desktop session. No type
/// of Qt passes through here.
namespace ostrelum::qt_platform {

/// What the program itself gives to the toolkit.
struct QtLook {
    /// The mouse cursor of a hand, 32 by 32 pixels; without it the desktop's own hand is used.
    Picture hand;
    /// Pixel of the hand that points.
    Point hot_spot;
    /// Name of the program's desktop entry, by which a Wayland desktop finds its icon.
    std::string desktop_entry;
    /// Size of the largest window, which a small screen is to hold; 0 for nothing to care about.
    int window_width = 0;
    int window_height = 0;
};

/// The toolkit. Only one can be at a time; `argc` and `argv` must outlive it. Ends the process with
/// a message if there is no display. All makers below need it to be there first.
std::unique_ptr<Toolkit> make_qt_toolkit(int& argc, char** argv, const QtLook& look);

std::unique_ptr<Clipboard> make_qt_clipboard();
std::unique_ptr<SaveDialog> make_qt_save_dialog();
std::unique_ptr<Browser> make_qt_browser();
SessionFactsSource qt_session_facts();

} // namespace ostrelum::qt_platform
