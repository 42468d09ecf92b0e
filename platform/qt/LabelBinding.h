#pragma once

#include "platform/qt/ControlBinding.h"
#include "platform/qt/MouseEventFilter.h"

#include <QLabel>

namespace ostrelum::qt_platform {

/// A label's widget.
class LabelWidget : public QLabel {
public:
    using QLabel::QLabel;
    /// Presses it as the left mouse button would.
    std::function<void()> press;
};

class LabelBinding : public BindingOf<Label> {
public:
    LabelBinding(Label& label, const ControlEntry& entry, QWidget& parent,
                 const WindowContext& context);
    QWidget* widget() const override { return widget_; }
    bool press(int button) override;

private:
    void apply() override;
    void apply_text();
    void place_text();
    bool sizes_itself() const { return control_.AutoSize && !control_.WordWrap; }

    LabelWidget* widget_;
    MouseEventFilter* mouse_;
};

} // namespace ostrelum::qt_platform
