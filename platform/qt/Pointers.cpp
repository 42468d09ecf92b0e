#include "platform/qt/Pointers.h"

#include "platform/qt/Images.h"

#include <QGuiApplication>

namespace ostrelum {
namespace {

QPixmap pointer_pixmap(const Picture& picture)
{
    const Bitmap& doubled = picture.doubled();
    if (qGuiApp->devicePixelRatio() <= 1 || doubled.width == 0)
        return pixmap_of(picture.bitmap());
    QPixmap pixmap = pixmap_of(doubled);
    pixmap.setDevicePixelRatio(2);
    return pixmap;
}

} // namespace

Pointers::Pointers(const Picture& hand, Point hot_spot)
    : hand_(hand.empty() ? QCursor(Qt::PointingHandCursor)
                         : QCursor(pointer_pixmap(hand), hot_spot.x, hot_spot.y))
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
