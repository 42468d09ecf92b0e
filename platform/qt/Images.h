#pragma once

#include "platform/toolkit/Picture.h"

#include <QImage>
#include <QPixmap>

namespace ostrelum::qt_platform {

/// A view of a bitmap's own bytes, which must stay; only a bitmap with coverage is copied. A null
/// image for an empty or a torn bitmap.
QImage image_of(const Bitmap& bitmap);

/// A copy for icons and mouse cursors.
QPixmap pixmap_of(const Bitmap& bitmap);

} // namespace ostrelum::qt_platform
