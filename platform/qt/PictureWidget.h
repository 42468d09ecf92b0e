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
    /// The box's size in pixels of the form, which are the picture's.
    void set_size_on_form(QSize size) { size_on_form_ = size; }
    /// Presses it as the left mouse button would.
    std::function<void()> press;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    qreal scale_on_screen() const;
    void choose_image();

    bool transparent_ = true;
    Colour ground_ = white;
    /// The image looks at the picture's own bytes.
    Picture picture_;
    QImage image_;
    /// Pixels of the screen for each of the form's for which the image was chosen.
    qreal scale_ = 0;
    QSize size_on_form_;
};

} // namespace ostrelum::qt_platform
