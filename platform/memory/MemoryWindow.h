#pragma once

#include "platform/memory/MemoryControls.h"
#include "platform/toolkit/FormFrame.h"

#include <vector>

namespace ostrelum::memory_platform {

/// A form's window in memory: what it shows, and the user's input. Points are those of the
/// client area.
class MemoryWindow : private FocusView {
public:
    MemoryWindow(const Form& form, EventDispatcher& dispatcher, const Toolkit& toolkit);

    /// Shows what differs.
    void sync();
    /// Takes the window away for good.
    void close() { events_.close(); }
    WindowEvents& events() { return events_; }
    const FormFrame& frame() const { return frame_; }
    /// The copy of a control that is on show.
    Control on_show(int place) const;
    int focused() const override { return focused_; }
    /// The control that the user sees to have the focus, or the form itself.
    int marked() const { return marked_; }
    /// A window under a modal one takes no input.
    void take_input(bool takes) { takes_input_ = takes; }
    bool takes_input() const { return takes_input_; }

    /// The program wishes a control to have the focus.
    void wish_focus(int control) { keyboard_.wish_focus(control); }
    /// A menu comes up, which takes the mouse.
    void let_go_of_mouse() { mouse_.let_go(); }
    void button_down(Point at, int button, int shift = 0);
    void button_up(Point at, int button, int shift = 0);
    void move_mouse(Point at, int buttons = 0, int shift = 0);
    void press_key(Key key, int shift = 0, bool repeated = false);
    /// Drags a slider over values and lets it go.
    void drag(int place, const std::vector<int>& values);

private:
    void set_focus(int control) override { focused_ = control; }
    void mark(int control) override { marked_ = control; }
    MemoryControl& control(int place) const;

    const Form& form_;
    WindowEvents events_;
    MouseInput mouse_;
    KeyboardInput keyboard_;
    std::vector<std::unique_ptr<MemoryControl>> controls_;
    FormFrame frame_;
    bool takes_input_ = true;
    int focused_ = form_itself;
    int marked_ = form_itself;
    /// The control on which the left button went down.
    int pressed_ = form_itself;
};

} // namespace ostrelum::memory_platform
