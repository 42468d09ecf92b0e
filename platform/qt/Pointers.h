#pragma once

#include "platform/toolkit/Controls.h"
#include "platform/toolkit/Toolkit.h"

#include <QCursor>
#include <QWidget>

namespace ostrelum {

/// The mouse pointers that the program asks for.
class Pointers {
public:
    /// `hand` is the picture of the hand pointer; the desktop's own hand without it.
    Pointers(const Picture& hand, Point hot_spot);

    /// Gives a widget its pointer; with Default it shows that of the widget which holds it.
    void give(QWidget& widget, Pointer pointer) const;
    /// One pointer for the whole screen; Default takes it back.
    void give_screen(Pointer pointer) const;

private:
    QCursor cursor_of(Pointer pointer) const;

    QCursor hand_;
};

} // namespace ostrelum
