#pragma once

#include "platform/qt/Carrier.h"

namespace ostrelum {

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

class LineCarrier : public CarrierOf<Line> {
public:
    LineCarrier(Line& line, const ControlEntry& entry, QWidget& parent, const Surroundings& around);
    QWidget* widget() const override { return widget_; }

private:
    void apply() override;

    LineWidget* widget_;
};

} // namespace ostrelum
