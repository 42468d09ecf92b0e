#pragma once

#include "platform/qt/ControlWidget.h"
#include "platform/qt/PictureWidget.h"

namespace ostrelum::qt_platform {

class QtPictureBinding : public BindingOf<PictureBox> {
public:
    QtPictureBinding(PictureBox& box, int place, QWidget& parent, const WindowContext& context);
    QWidget* widget() const { return widget_; }

private:
    void apply() override;

    PictureWidget* widget_;
    const WindowContext context_;
};

} // namespace ostrelum::qt_platform
