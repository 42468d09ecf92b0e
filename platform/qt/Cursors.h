#pragma once

#include "platform/toolkit/Controls.h"
#include "platform/toolkit/Toolkit.h"

#include <QCursor>
#include <QWidget>

namespace ostrelum::qt_platform {

/// The mouse cursors that the program asks for.
class Cursors {
public:
    /// `hand` is the picture of the hand cursor; the desktop's own hand without it.
    Cursors(const Picture& hand, Point hot_spot);

    /// Gives a widget its cursor; with Default it shows that of the widget which holds it.
    void set(QWidget& widget, MouseCursor cursor) const;
    /// One cursor for the whole screen; Default takes it back.
    void set_screen(MouseCursor cursor) const;

private:
    QCursor cursor_of(MouseCursor cursor) const;

    QCursor hand_;
};

} // namespace ostrelum::qt_platform
