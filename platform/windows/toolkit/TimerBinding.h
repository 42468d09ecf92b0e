#pragma once

#include "platform/toolkit/ControlBinding.h"

#include <windows.h>

namespace ostrelum::windows_platform {

/// A timer of a form's window; its number is the control's, counted from 1.
class TimerBinding : public BindingOf<Timer> {
public:
    TimerBinding(Timer& timer, int control, HWND window, WindowEvents& events)
        : BindingOf(timer, control, events), window_(window)
    {
    }
    void stop() override { KillTimer(window_, number()); }
    void tick();

private:
    void apply() override;
    UINT_PTR number() const { return static_cast<UINT_PTR>(place_) + 1; }

    HWND window_;
};

} // namespace ostrelum::windows_platform
