#include "platform/qt/LineBinding.h"

#include "platform/qt/Colours.h"

#include <QPainter>

namespace ostrelum::qt_platform {

LineWidget::LineWidget(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void LineWidget::set_line(const Line& line)
{
    line_ = line;
    const Area area = area_of(line);
    setGeometry(area.left, area.top, area.width, area.height);
    update();
}

void LineWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QColor colour = qt_colour(line_.BorderColor);
    // A pen would be as thin on a screen of double scale as on any other, and leave gaps.
    if (line_.X1 == line_.X2 || line_.Y1 == line_.Y2) {
        painter.fillRect(rect(), colour);
        return;
    }
    painter.setPen(colour);
    painter.drawLine(line_.X1 - x(), line_.Y1 - y(), line_.X2 - x(), line_.Y2 - y());
}

QtLineBinding::QtLineBinding(Line& line, int place, QWidget& parent, const WindowContext& context)
    : BindingOf(line, place, context.events), widget_(new LineWidget(&parent))
{
}

void QtLineBinding::apply()
{
    if (changed(&Line::X1, &Line::Y1, &Line::X2, &Line::Y2, &Line::BorderColor))
        widget_->set_line(control_);
    if (changed(&Line::Visible))
        widget_->setVisible(control_.Visible);
}

} // namespace ostrelum::qt_platform
