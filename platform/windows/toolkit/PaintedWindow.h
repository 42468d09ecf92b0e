#pragma once

#include "platform/windows/toolkit/ControlWindow.h"

namespace ostrelum::windows_platform {

/// A control that the program draws itself, on the system's own static window: what lies under it
/// shows through, which those do not do by themselves.
class PaintedWindow : public ControlWindow {
public:
    /// `style` is one of the static window's.
    PaintedWindow(int control, FormHost& host, DWORD style);
    bool is_input() const final { return false; }

protected:
    LRESULT handle_message(const Message& message) override;

private:
    void paint();
};

} // namespace ostrelum::windows_platform
