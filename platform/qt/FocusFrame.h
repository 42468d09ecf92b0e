#pragma once

#include <QWidget>

namespace ostrelum::qt_platform {

/// The frame round the control that has the keyboard. It is a widget of its own over all others of
/// the window, because a picture may lie over the control.
class FocusFrame : public QWidget {
public:
    explicit FocusFrame(QWidget& window);
    /// Shows round a part of the window.
    void follow(const QRect& place);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace ostrelum::qt_platform
