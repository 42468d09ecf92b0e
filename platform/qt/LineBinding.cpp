#include "platform/qt/LineBinding.h"

#include "platform/qt/Colours.h"

#include <QPainter>

#include <algorithm>
#include <cstdlib>

namespace ostrelum::qt_platform {

LineWidget::LineWidget(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void LineWidget::set_line(const Line& line)
{
    line_ = line;
    // The end point is not part of the line, save where that would leave nothing.
    setGeometry(std::min(line.X1, line.X2), std::min(line.Y1, line.Y2),
                std::max(std::abs(line.X2 - line.X1), 1), std::max(std::abs(line.Y2 - line.Y1), 1));
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

LineBinding::LineBinding(Line& line, const ControlEntry& entry, QWidget& parent,
                         const WindowContext& context)
    : BindingOf(line, entry, context), widget_(new LineWidget(&parent))
{
}

void LineBinding::apply()
{
    if (changed(&Line::X1, &Line::Y1, &Line::X2, &Line::Y2, &Line::BorderColor))
        widget_->set_line(control_);
    appear(*widget_);
}

} // namespace ostrelum::qt_platform
