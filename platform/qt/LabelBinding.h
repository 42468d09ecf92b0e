#pragma once

#include "platform/qt/ControlWidget.h"

#include <QLabel>

#include <functional>

namespace ostrelum::qt_platform {

/// A label's widget.
class LabelWidget : public QLabel {
public:
    using QLabel::QLabel;
    /// Presses it as the left mouse button would.
    std::function<void()> press;
    /// What a screen reader is told; empty for what it passes over.
    std::function<QString()> reading;
    const Label* label = nullptr;
};

class QtLabelBinding : public BindingOf<Label> {
public:
    QtLabelBinding(Label& label, int place, QWidget& parent, const WindowContext& context);
    QWidget* widget() const { return widget_; }

private:
    void apply() override;
    void apply_text();
    void place_text();

    LabelWidget* widget_;
    const WindowContext context_;
};

} // namespace ostrelum::qt_platform
