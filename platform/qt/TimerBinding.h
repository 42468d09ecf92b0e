#pragma once

#include "platform/qt/ControlBinding.h"

#include <QTimer>

namespace ostrelum::qt_platform {

class TimerBinding : public BindingOf<Timer> {
public:
    TimerBinding(Timer& timer, const ControlEntry& entry, const WindowContext& context);
    QWidget* widget() const override { return nullptr; }
    void stop() override { clock_.stop(); }

private:
    void apply() override;

    QTimer clock_;
};

} // namespace ostrelum::qt_platform
