#include "platform/qt/PictureWidget.h"

#include "platform/qt/Colours.h"
#include "platform/qt/Images.h"

#include <QPainter>

namespace ostrelum::qt_platform {

void PictureWidget::set_ground(bool transparent, Colour colour)
{
    transparent_ = transparent;
    ground_ = colour;
    // Without holes nothing under the box needs to be painted.
    setAttribute(Qt::WA_OpaquePaintEvent, !transparent);
    update();
}

void PictureWidget::set_picture(const Picture& picture)
{
    picture_ = picture;
    choose_image();
    update();
}

qreal PictureWidget::scale_on_screen() const
{
    return devicePixelRatio() * width() / std::max(size_on_form_.width(), 1);
}

/// Only a screen of a higher scale makes the picture at double size.
void PictureWidget::choose_image()
{
    scale_ = scale_on_screen();
    image_ = scale_ > 1 ? image_of(picture_.doubled()) : QImage();
    if (image_.isNull())
        image_ = image_of(picture_.bitmap());
    else
        image_.setDevicePixelRatio(2);
}

void PictureWidget::paintEvent(QPaintEvent*)
{
    // The window may have moved to another screen.
    if (scale_ != scale_on_screen())
        choose_image();
    QPainter painter(this);
    // Only a scale between the picture's sizes needs in-between pixels.
    painter.setRenderHint(QPainter::SmoothPixmapTransform, scale_ != image_.devicePixelRatio());
    if (!transparent_)
        painter.fillRect(rect(), qt_colour(ground_));
    painter.scale(width() / static_cast<qreal>(size_on_form_.width()),
                  height() / static_cast<qreal>(size_on_form_.height()));
    painter.drawImage(0, 0, image_);
}

} // namespace ostrelum::qt_platform
