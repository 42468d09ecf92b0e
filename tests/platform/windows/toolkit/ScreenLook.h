#pragma once

#include "tests/platform/toolkit/conformance/Driver.h"

#include <windows.h>

/// What the system's windows show, asked of them.
namespace ostrelum::windows_platform {

/// What a control's window shows that it tells itself: text, colour, font, style, values.
conformance::Look look_of(HWND window);

/// What the system's accessibility tells of a window.
conformance::Spoken spoken_of(HWND window);

/// The entries of a menu.
std::vector<conformance::MenuEntry> entries_of(HMENU menu);

std::string text_of(HWND window);

} // namespace ostrelum::windows_platform
