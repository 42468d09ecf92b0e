#pragma once

#include "platform/toolkit/Focus.h"

#include <windows.h>

/// Keys and buttons of the system as the program knows them.
namespace ostrelum::windows_platform {

/// Of a virtual-key code.
Key key_of(WPARAM code);

/// Shift, Ctrl and Alt as they are with the message at hand, as an Event counts them.
int shift_state();

/// The mouse button of a message that tells of one going down or up; 0 for any other message.
int button_of(UINT message);

/// The buttons that a mouse message says are down, as an Event counts them.
int buttons_of(WPARAM keys);

} // namespace ostrelum::windows_platform
