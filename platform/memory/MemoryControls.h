#pragma once

#include "platform/toolkit/InputBindings.h"
#include "platform/toolkit/KeyboardInput.h"
#include "platform/toolkit/Toolkit.h"

#include <memory>

namespace ostrelum::memory_platform {

/// A control of a window in memory: what it shows, and what it does with the user's hands.
class MemoryControl {
public:
    MemoryControl() = default;
    MemoryControl(const MemoryControl&) = delete;
    MemoryControl& operator=(const MemoryControl&) = delete;
    virtual ~MemoryControl() = default;

    virtual ControlBinding& binding() = 0;
    /// The copy of the control that is on show.
    virtual Control on_show() const = 0;
    /// A key, while the control has the focus. False if it means nothing to the control.
    virtual bool key(Key) { return false; }
    /// The left button is the control's own affair, and a click() where it goes down and up; what
    /// the other buttons do goes to what holds the control.
    virtual bool is_input() const { return false; }
    virtual void click() {}
    /// The slider is dragged to a value; nothing on other controls.
    virtual void drag(int) {}
    virtual void let_go() {}
};

std::unique_ptr<MemoryControl> make_memory_control(int place, WindowEvents& events,
                                                   const Toolkit& toolkit);

} // namespace ostrelum::memory_platform
