#pragma once

#include <QHelpEvent>
#include <QWidget>

namespace ostrelum::qt_platform {

/// The text as the toolkit's tooltips have to be given it to be shown letter by letter, even if it
/// looks like markup, and wrapped where it is long.
QString tooltip_markup(const QString& text);

/// Shows the widget's tooltip. False if it has none.
bool show_tooltip(QWidget& widget, const QHelpEvent& help);

} // namespace ostrelum::qt_platform
