#include "platform/qt/Cursors.h"

#include "platform/qt/Images.h"

#include <QGuiApplication>

namespace ostrelum::qt_platform {
namespace {

/// On X11 a cursor's picture is taken pixel by pixel, and its hot spot with it.
QCursor image_cursor(const Picture& picture, Point hot_spot)
{
    const Bitmap& doubled = picture.doubled();
    if (qGuiApp->devicePixelRatio() < 2 || doubled.width == 0)
        return QCursor(pixmap_of(picture.bitmap()), hot_spot.x, hot_spot.y);
    QPixmap pixmap = pixmap_of(doubled);
    pixmap.setDevicePixelRatio(2);
    const int scale = QGuiApplication::platformName() == u"xcb" ? 2 : 1;
    return QCursor(pixmap, scale * hot_spot.x, scale * hot_spot.y);
}

} // namespace

Cursors::Cursors(const Picture& hand, Point hot_spot)
    : hand_(hand.empty() ? QCursor(Qt::PointingHandCursor) : image_cursor(hand, hot_spot))
{
}

QCursor Cursors::cursor_of(MouseCursor cursor) const
{
    switch (cursor) {
    case MouseCursor::Hand: return hand_;
    case MouseCursor::Hourglass: return QCursor(Qt::WaitCursor);
    case MouseCursor::Arrow:
    case MouseCursor::Default: break;
    }
    return QCursor(Qt::ArrowCursor);
}

void Cursors::set(QWidget& widget, MouseCursor cursor) const
{
    if (cursor == MouseCursor::Default)
        widget.unsetCursor();
    else
        widget.setCursor(cursor_of(cursor));
}

void Cursors::set_screen(MouseCursor cursor) const
{
    // One override at most: the program sets cursors, it does not stack them.
    QGuiApplication::restoreOverrideCursor();
    if (cursor != MouseCursor::Default)
        QGuiApplication::setOverrideCursor(cursor_of(cursor));
}

} // namespace ostrelum::qt_platform
