#pragma once

#include "platform/qt/ControlBinding.h"

namespace ostrelum::qt_platform {

/// A line's widget; the mouse goes through it.
class LineWidget : public QWidget {
public:
    explicit LineWidget(QWidget* parent);
    void set_line(const Line& line);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Line line_;
};

class LineBinding : public BindingOf<Line> {
public:
    LineBinding(Line& line, const ControlEntry& entry, QWidget& parent,
                const WindowContext& context);
    QWidget* widget() const override { return widget_; }

private:
    void apply() override;

    LineWidget* widget_;
};

} // namespace ostrelum::qt_platform
