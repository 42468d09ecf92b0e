#pragma once

#include "platform/qt/Carrier.h"

#include <QTimer>

namespace ostrelum {

class TimerCarrier : public CarrierOf<Timer> {
public:
    TimerCarrier(Timer& timer, const ControlEntry& entry, const Surroundings& around);
    QWidget* widget() const override { return nullptr; }
    void stop() override { clock_.stop(); }

private:
    void apply() override;

    QTimer clock_;
};

} // namespace ostrelum
