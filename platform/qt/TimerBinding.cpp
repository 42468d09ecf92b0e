#include "platform/qt/TimerBinding.h"

#include <algorithm>

namespace ostrelum::qt_platform {
namespace {

/// Milliseconds of a screen frame, the fastest tick.
constexpr int FrameTime = 15;

} // namespace

TimerBinding::TimerBinding(Timer& timer, const ControlEntry& entry, const WindowContext& context)
    : BindingOf(timer, entry, context)
{
    clock_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&clock_, &QTimer::timeout, &clock_, [this] {
        // Switched off by an event that still runs and lets other events in.
        if (control_.Enabled)
            raise(EventKind::Timer);
    });
}

void TimerBinding::apply()
{
    if (control_.Enabled && control_.Interval > 0)
        clock_.start(std::max(control_.Interval, FrameTime));
    else
        clock_.stop();
}

} // namespace ostrelum::qt_platform
