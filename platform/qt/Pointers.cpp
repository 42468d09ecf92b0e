#include "platform/qt/Pointers.h"

#include "platform/qt/Images.h"

#include <QGuiApplication>

namespace ostrelum {
namespace {

/// On X11 a pointer's picture is taken pixel by pixel, and its hot spot with it.
QCursor pointer_of(const Picture& picture, Point hot_spot)
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

Pointers::Pointers(const Picture& hand, Point hot_spot)
    : hand_(hand.empty() ? QCursor(Qt::PointingHandCursor) : pointer_of(hand, hot_spot))
{
}

QCursor Pointers::cursor_of(Pointer pointer) const
{
    switch (pointer) {
    case Pointer::Hand: return hand_;
    case Pointer::Hourglass: return QCursor(Qt::WaitCursor);
    case Pointer::Arrow:
    case Pointer::Default: break;
    }
    return QCursor(Qt::ArrowCursor);
}

void Pointers::give(QWidget& widget, Pointer pointer) const
{
    if (pointer == Pointer::Default)
        widget.unsetCursor();
    else
        widget.setCursor(cursor_of(pointer));
}

void Pointers::give_screen(Pointer pointer) const
{
    // One override at most: the program sets pointers, it does not stack them.
    QGuiApplication::restoreOverrideCursor();
    if (pointer != Pointer::Default)
        QGuiApplication::setOverrideCursor(cursor_of(pointer));
}

} // namespace ostrelum
