#pragma once

#include "platform/qt/Carrier.h"
#include "platform/qt/MouseFeed.h"
#include "platform/qt/PictureWidget.h"

namespace ostrelum {

class PictureCarrier : public CarrierOf<PictureBox> {
public:
    PictureCarrier(PictureBox& box, const ControlEntry& entry, QWidget& parent,
                   const Surroundings& around);
    QWidget* widget() const override { return widget_; }
    bool press(int button) override;

private:
    void apply() override;

    PictureWidget* widget_;
    MouseFeed* feed_;
};

} // namespace ostrelum
