#pragma once

#include "platform/toolkit/Colour.h"
#include "platform/toolkit/Picture.h"

#include <QImage>
#include <QWidget>

#include <functional>

namespace ostrelum::qt_platform {

/// A picture box's widget: its ground, and over it the picture from the top left corner.
class PictureWidget : public QWidget {
public:
    using QWidget::QWidget;
    void set_ground(bool transparent, Colour colour);
    void set_picture(const Picture& picture);
    /// Presses it as the left mouse button would.
    std::function<void()> press;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void choose_image();

    bool transparent_ = true;
    Colour ground_ = white;
    /// The image looks at the picture's own bytes.
    Picture picture_;
    QImage image_;
    /// Scale of the screen for which the image was chosen.
    qreal scale_ = 0;
};

} // namespace ostrelum::qt_platform
