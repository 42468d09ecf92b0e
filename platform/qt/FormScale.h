#pragma once

#include "platform/toolkit/ControlTree.h"

#include <QPoint>
#include <QRect>
#include <QScreen>

#include <algorithm>
#include <cmath>

namespace ostrelum::qt_platform {

/// From the pixels of a form to those of its window, which are fewer on a small screen. That comes
/// beside the screen's own scale, of which the toolkit takes care; its own would draw nothing
/// smaller.
struct FormScale {
    /// Pixels of the window for each of the form's, 1 or less.
    double factor = 1;

    int to_window(int pixels) const { return static_cast<int>(std::lround(pixels * factor)); }
    QPoint to_window(Point point) const { return {to_window(point.x), to_window(point.y)}; }
    /// Edges go to their own pixels, so that boxes side by side stay so. Nothing gets too thin to
    /// be seen.
    QRect to_window(const Area& area) const
    {
        const QPoint start = to_window(Point{area.left, area.top});
        const QPoint end = to_window(Point{area.left + area.width, area.top + area.height});
        return {start, QSize(std::max(end.x() - start.x(), std::min(area.width, 1)),
                             std::max(end.y() - start.y(), std::min(area.height, 1)))};
    }
    /// So many that as many of the form fit in.
    int room_in_window(int pixels) const { return static_cast<int>(std::ceil(pixels * factor)); }
    /// The pixel of the form that one of the window shows.
    Point to_form(QPoint point) const
    {
        return {static_cast<int>(std::floor(point.x() / factor)),
                static_cast<int>(std::floor(point.y() / factor))};
    }
    /// So many that the window's fit in.
    int room_on_form(int pixels) const { return static_cast<int>(std::ceil(pixels / factor)); }
};

/// Where the next window comes up; nullptr without any screen.
const QScreen* screen_of_new_window();

/// The scale at which a window whose form has that size fits on the screen where it will come up,
/// together with its frame; no smaller than its letters can be read.
FormScale fitting_scale(QSize form);

} // namespace ostrelum::qt_platform
