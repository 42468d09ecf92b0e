#pragma once

#include "platform/toolkit/Colour.h"

#include <QColor>
#include <QPalette>
#include <QWidget>

namespace ostrelum::qt_platform {

inline QColor qt_colour(Colour colour)
{
    return QColor(red_of(colour), green_of(colour), blue_of(colour));
}

inline void paint_text(QWidget& widget, Colour colour)
{
    QPalette palette = widget.palette();
    palette.setColor(QPalette::WindowText, qt_colour(colour));
    widget.setPalette(palette);
}

/// The colours of the controls in a window. The window's own colours are given and light, so a
/// desktop's dark scheme must not put white letters on them.
inline QPalette window_palette(Colour ground)
{
    return QPalette(QColor(240, 240, 240), qt_colour(ground));
}

/// The colours of a tick box: on a white ground the style's outline would hardly be seen.
inline QPalette box_palette(QPalette palette)
{
    palette.setColor(QPalette::Window, QColor(165, 165, 165));
    return palette;
}

} // namespace ostrelum::qt_platform
