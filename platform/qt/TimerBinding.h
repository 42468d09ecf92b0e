#pragma once

#include "platform/toolkit/ControlBinding.h"

#include <QTimer>

namespace ostrelum::qt_platform {

class QtTimerBinding : public BindingOf<Timer> {
public:
    QtTimerBinding(Timer& timer, int place, WindowEvents& events);
    void stop() override { clock_.stop(); }

private:
    void apply() override;

    QTimer clock_;
};

} // namespace ostrelum::qt_platform
