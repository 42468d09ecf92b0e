#include "platform/qt/Images.h"

namespace ostrelum::qt_platform {

QImage image_of(const Bitmap& bitmap)
{
    const auto rows = static_cast<std::size_t>(std::max(bitmap.height, 0));
    const auto columns = static_cast<std::size_t>(std::max(bitmap.width, 0));
    if (rows == 0 || columns == 0 ||
        bitmap.bytes.size() < rows * static_cast<std::size_t>(bitmap.stride()))
        return {};
    QImage image(bitmap.bytes.data(), bitmap.width, bitmap.height, bitmap.stride(),
                 QImage::Format_BGR888);
    if (bitmap.coverage.size() < rows * columns)
        return image;
    image = image.convertToFormat(QImage::Format_ARGB32);
    image.setAlphaChannel(QImage(bitmap.coverage.data(), bitmap.width, bitmap.height, bitmap.width,
                                 QImage::Format_Alpha8));
    return image;
}

QPixmap pixmap_of(const Bitmap& bitmap)
{
    return QPixmap::fromImage(image_of(bitmap).copy());
}

} // namespace ostrelum::qt_platform
