#include "platform/qt/LineBinding.h"

#include "platform/qt/Colours.h"

#include <QPainter>

namespace ostrelum::qt_platform {

LineWidget::LineWidget(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void LineWidget::set_line(const Line& line, const FormScale& scale)
{
    line_ = line;
    scale_ = scale;
    setGeometry(scale.to_window(area_of(line)));
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
    painter.drawLine(scale_.to_window(Point{line_.X1, line_.Y1}) - pos(),
                     scale_.to_window(Point{line_.X2, line_.Y2}) - pos());
}

QtLineBinding::QtLineBinding(Line& line, int place, QWidget& parent, const WindowContext& context)
    : BindingOf(line, place, context.events), widget_(new LineWidget(&parent)),
      scale_(context.scale)
{
}

void QtLineBinding::apply()
{
    if (changed(&Line::X1, &Line::Y1, &Line::X2, &Line::Y2, &Line::BorderColor))
        widget_->set_line(control_, scale_);
    if (changed(&Line::Visible))
        widget_->setVisible(control_.Visible);
}

} // namespace ostrelum::qt_platform
