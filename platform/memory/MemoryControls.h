#pragma once

#include "platform/toolkit/InputBindings.h"
#include "platform/toolkit/KeyboardInput.h"
#include "platform/toolkit/Toolkit.h"

#include <memory>

namespace ostrelum::memory_platform {

/// A control of a window in memory: what it shows, and what it does with the user's input.
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
    /// Whether the control handles the left mouse button itself, by click(). The other buttons are
    /// then for what holds the control.
    virtual bool is_input() const { return false; }
    virtual void click() {}
    /// The slider is dragged to a value; nothing on other controls.
    virtual void drag(int) {}
    virtual void let_go() {}
};

std::unique_ptr<MemoryControl> make_memory_control(int place, WindowEvents& events,
                                                   const Toolkit& toolkit);

} // namespace ostrelum::memory_platform
