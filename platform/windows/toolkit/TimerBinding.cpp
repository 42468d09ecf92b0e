#include "platform/windows/toolkit/TimerBinding.h"

namespace ostrelum::windows_platform {

void TimerBinding::apply()
{
    if (const auto interval = tick_interval(control_))
        SetTimer(window_, number(), static_cast<UINT>(*interval), nullptr);
    else
        stop();
}

void TimerBinding::tick()
{
    // Switched off by an event that still runs and lets other events in.
    if (control_.Enabled)
        raise(EventKind::Timer);
}

} // namespace ostrelum::windows_platform
