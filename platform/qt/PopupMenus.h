#pragma once

#include "platform/qt/FormWindow.h"

namespace ostrelum::qt_platform {

/// Pops up a menu of a form at a point of the screen. Returns at once: Click of the chosen entry
/// is raised when the menu has gone and no other event runs.
void pop_up(FormWindow& window, const PopupMenu& menu, QPoint at, const MenuItem* bold);

} // namespace ostrelum::qt_platform
