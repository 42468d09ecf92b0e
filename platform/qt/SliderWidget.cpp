#include "platform/qt/SliderWidget.h"

#include <QLinearGradient>
#include <QPolygonF>
#include <QStyleOptionSlider>

#include <cmath>

namespace ostrelum::qt_platform {
namespace {

constexpr QColor track(229, 234, 240);
constexpr QColor edge(170, 180, 192);
constexpr QColor thumb_edge(118, 132, 148);
constexpr QColor arrow(68, 84, 106);
constexpr QColor dimmed_arrow(176, 186, 198);
/// Surfaces are lit from above, as the program's drawings are.
constexpr QColor lit(255, 255, 255);
constexpr QColor shaded(231, 236, 242);
constexpr QColor shaded_when_held(205, 220, 238);

QLinearGradient surface(const QRectF& place, const QColor& foot)
{
    QLinearGradient light(place.topLeft(), place.bottomLeft());
    light.setColorAt(0, lit);
    light.setColorAt(1, foot);
    return light;
}

/// The middle of the outermost pixels, where a line of one pixel runs.
QRectF outline_of(const QRectF& place)
{
    return place.adjusted(0.5, 0.5, -0.5, -0.5);
}

} // namespace

void SliderWidget::paintEvent(QPaintEvent*)
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    const auto part = [&](QStyle::SubControl control) {
        return QRectF(style()->subControlRect(QStyle::CC_ScrollBar, &option, control, this));
    };
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(edge);
    painter.setBrush(track);
    painter.drawRoundedRect(outline_of(rect()), 3, 3);
    draw_end(painter, part(QStyle::SC_ScrollBarSubLine), true);
    draw_end(painter, part(QStyle::SC_ScrollBarAddLine), false);
    if (isEnabled())
        draw_thumb(painter, part(QStyle::SC_ScrollBarSlider));
}

/// The toolkit's own scroll bars go left with the right arrow key.
void SliderWidget::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Left)
        triggerAction(SliderSingleStepSub);
    else if (event->key() == Qt::Key_Right)
        triggerAction(SliderSingleStepAdd);
    else
        QScrollBar::keyPressEvent(event);
}

void SliderWidget::draw_end(QPainter& painter, const QRectF& button, bool leftwards) const
{
    if (button.isEmpty())
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(isEnabled() ? arrow : dimmed_arrow);
    const QPointF middle = button.center();
    const qreal side = leftwards ? -1 : 1;
    painter.drawPolygon(QPolygonF{{middle.x() + 2.5 * side, middle.y()},
                                  {middle.x() - 1.5 * side, middle.y() - 4},
                                  {middle.x() - 1.5 * side, middle.y() + 4}});
}

void SliderWidget::draw_thumb(QPainter& painter, const QRectF& thumb) const
{
    painter.setPen(thumb_edge);
    painter.setBrush(surface(thumb, isSliderDown() ? shaded_when_held : shaded));
    painter.drawRoundedRect(outline_of(thumb), 3, 3);
    // The grip.
    painter.setPen(edge);
    for (const int line : {-3, 0, 3}) {
        const qreal x = std::floor(thumb.center().x()) + line + 0.5;
        painter.drawLine(QPointF(x, thumb.top() + 5.5), QPointF(x, thumb.bottom() - 5.5));
    }
}

} // namespace ostrelum::qt_platform
