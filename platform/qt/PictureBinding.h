#pragma once

#include "platform/qt/ControlBinding.h"
#include "platform/qt/MouseFeed.h"
#include "platform/qt/PictureWidget.h"

namespace ostrelum {

class PictureBinding : public BindingOf<PictureBox> {
public:
    PictureBinding(PictureBox& box, const ControlEntry& entry, QWidget& parent,
                   const WindowContext& context);
    QWidget* widget() const override { return widget_; }
    bool press(int button) override;

private:
    void apply() override;

    PictureWidget* widget_;
    MouseFeed* feed_;
};

} // namespace ostrelum
