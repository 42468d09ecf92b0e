#include "platform/qt/TimerBinding.h"

namespace ostrelum::qt_platform {
QtTimerBinding::QtTimerBinding(Timer& timer, int place, WindowEvents& events)
    : BindingOf(timer, place, events)
{
    clock_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&clock_, &QTimer::timeout, &clock_, [this] {
        // Switched off by an event that still runs and lets other events in.
        if (control_.Enabled)
            raise(EventKind::Timer);
    });
}

void QtTimerBinding::apply()
{
    if (const auto interval = tick_interval(control_))
        clock_.start(*interval);
    else
        clock_.stop();
}

} // namespace ostrelum::qt_platform
