#pragma once

#include "platform/qt/ControlWidget.h"

namespace ostrelum::qt_platform {

/// A line's widget; it lets the mouse through.
class LineWidget : public QWidget {
public:
    explicit LineWidget(QWidget* parent);
    void set_line(const Line& line, const FormScale& scale);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Line line_;
    FormScale scale_;
};

class QtLineBinding : public BindingOf<Line> {
public:
    QtLineBinding(Line& line, int place, QWidget& parent, const WindowContext& context);
    QWidget* widget() const { return widget_; }

private:
    void apply() override;

    LineWidget* widget_;
    const FormScale scale_;
};

} // namespace ostrelum::qt_platform
