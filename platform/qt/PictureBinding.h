#pragma once

#include "platform/qt/ControlBinding.h"
#include "platform/qt/MouseEventFilter.h"
#include "platform/qt/PictureWidget.h"

namespace ostrelum::qt_platform {

class PictureBinding : public BindingOf<PictureBox> {
public:
    PictureBinding(PictureBox& box, const ControlEntry& entry, QWidget& parent,
                   const WindowContext& context);
    QWidget* widget() const override { return widget_; }
    bool press(int button) override;

private:
    void apply() override;

    PictureWidget* widget_;
    MouseEventFilter* mouse_;
};

} // namespace ostrelum::qt_platform
