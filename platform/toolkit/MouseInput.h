#pragma once

#include "platform/toolkit/EventDispatcher.h"

namespace ostrelum::inline toolkit {

/// The topmost control under a point of the client area; the form itself where there is none.
/// Lines let the mouse through.
int control_at(const Form& form, Point point);

/// The control that gets the mouse events of `control`: one to which nobody listens lets its mouse
/// through to what holds it, in the end the form.
int mouse_target(const Form& form, int control);

/// Turns what the mouse does over a form's window into events. Points are those of the client
/// area, a control is the one under the mouse.
class MouseInput {
public:
    explicit MouseInput(WindowEvents& events) : events_(events) {}

    /// The control keeps the mouse until all buttons are up again.
    void button_down(int control, int button, int shift, Point at);
    /// A release over the same control is a click, if the button is the left one.
    void button_up(int button, int shift, Point at);
    /// Something else took the mouse while a button was down: a menu, which gets the release.
    void let_go() { held_ = 0; }
    /// `buttons` are those that are down, added up.
    void moved(int control, int buttons, int shift, Point at);
    /// A press and a release in the middle of a control, from the keyboard or a screen reader. True
    /// if a menu came up.
    bool press(int control, int button);

private:
    void raise(EventKind kind, int target, int button, int shift, Point at);

    WindowEvents& events_;
    int captured_ = form_itself;
    /// Buttons that went down in this window and are not up yet.
    int held_ = 0;
};

} // namespace ostrelum::inline toolkit
