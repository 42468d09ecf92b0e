#pragma once

#include <QHelpEvent>
#include <QWidget>

namespace ostrelum::qt_platform {

/// Shows the widget's tooltip letter by letter, on one line unless it is wider than the screen.
/// False if it has none.
bool show_tooltip(QWidget& widget, const QHelpEvent& help);

} // namespace ostrelum::qt_platform
