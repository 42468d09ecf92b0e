#pragma once

#include "platform/qt/ControlBinding.h"

#include <QMouseEvent>

namespace ostrelum::qt_platform {

/// Turns what the mouse does on a widget into events of its control, and shows its tooltip. A
/// control to which nobody listens lets its mouse through to what holds it, in the end the form.
class MouseEventFilter : public QObject {
public:
    /// `entry` is nullptr for the form's own window.
    MouseEventFilter(QWidget& widget, const ControlEntry* entry, const WindowContext& context);

    /// A press and a release in the middle of the widget, from the keyboard or a screen reader.
    void press(int button);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    bool button_down(const QMouseEvent& mouse);
    bool button_up(const QMouseEvent& mouse);
    bool moved(const QMouseEvent& mouse);
    bool listens(EventKind kind) const;
    /// `at` is a point of the target.
    void raise(EventKind kind, int button, Qt::KeyboardModifiers modifiers, QPoint at) const;
    QPoint in_target(const QMouseEvent& mouse) const;

    QWidget& widget_;
    const WindowContext context_;
    /// The control that gets the events, nullptr for the form; and its widget.
    const ControlEntry* target_;
    QWidget* target_widget_;
    Qt::MouseButtons pressed_;
};

} // namespace ostrelum::qt_platform
