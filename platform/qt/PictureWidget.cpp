#include "platform/qt/PictureWidget.h"

#include "platform/qt/Colours.h"
#include "platform/qt/Images.h"

#include <QPainter>

#include <cmath>

namespace ostrelum {

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
    image_ = QImage();
    picture_ = picture;
    image_ = image_of(picture_.bitmap());
    update();
}

void PictureWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    // Only a screen whose scale is not a whole number needs in-between pixels.
    const bool whole = devicePixelRatio() == std::floor(devicePixelRatio());
    painter.setRenderHint(QPainter::SmoothPixmapTransform, !whole);
    if (!transparent_)
        painter.fillRect(rect(), qt_colour(ground_));
    painter.drawImage(0, 0, image_);
}

} // namespace ostrelum
