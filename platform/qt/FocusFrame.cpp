#include "platform/qt/FocusFrame.h"

#include <QPainter>

namespace ostrelum::qt_platform {
namespace {

/// Pixels between the widget and the frame's outer edge.
constexpr int margin = 4;

} // namespace

FocusFrame::FocusFrame(QWidget& window) : QWidget(&window)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void FocusFrame::follow(const QRect& place)
{
    setGeometry(place.adjusted(-margin, -margin, margin, margin));
    raise();
    show();
}

void FocusFrame::paintEvent(QPaintEvent*)
{
    // A light and a dark line: one of them shows on any ground.
    QPainter painter(this);
    painter.setPen(Qt::white);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.setPen(Qt::black);
    painter.drawRect(rect().adjusted(1, 1, -2, -2));
}

} // namespace ostrelum::qt_platform
