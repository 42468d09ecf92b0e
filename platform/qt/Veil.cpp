#include "platform/qt/Veil.h"

#include <QPainter>

namespace ostrelum::qt_platform {

Veil::Veil(QWidget& window) : QWidget(&window)
{
    window.setAttribute(Qt::WA_TranslucentBackground);
    // The window has a ground all the same.
    window.setAttribute(Qt::WA_NoSystemBackground, false);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void Veil::set_alpha(std::uint8_t alpha)
{
    alpha_ = alpha;
    setVisible(alpha != WindowStyles::opaque);
    update();
}

void Veil::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.fillRect(rect(), QColor(0, 0, 0, alpha_));
}

} // namespace ostrelum::qt_platform
