#pragma once

#include "platform/qt/ControlWidget.h"

#include <QMouseEvent>

namespace ostrelum::qt_platform {

/// Passes what the mouse does on a widget to MouseInput, and shows its tooltip.
class MouseEventFilter : public QObject {
public:
    /// `place` is the widget's control, or the form itself for its window.
    MouseEventFilter(QWidget& widget, int place, const WindowContext& context);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    /// Where the mouse is on the form.
    Point point_of(const QMouseEvent& mouse) const;

    QWidget& widget_;
    const int place_;
    MouseInput& mouse_;
    const FormScale scale_;
};

} // namespace ostrelum::qt_platform
