#pragma once

#include "platform/toolkit/Focus.h"
#include "platform/toolkit/MouseInput.h"

namespace ostrelum::inline toolkit {

/// What a back end's window tells and does about its focus.
class FocusView {
public:
    FocusView() = default;
    FocusView(const FocusView&) = delete;
    FocusView& operator=(const FocusView&) = delete;
    virtual ~FocusView() = default;

    /// The control that has the focus, or the form itself.
    virtual int focused() const = 0;
    virtual void set_focus(int control) = 0;
    /// Marks the control that has the focus; the form itself for no mark.
    virtual void mark(int control) = 0;
};

/// What keys do in a form's window beyond what its controls do with them.
class KeyboardInput {
public:
    KeyboardInput(WindowEvents& events, MouseInput& mouse, FocusView& view)
        : events_(events), mouse_(mouse), view_(view)
    {
    }

    /// A key that no control wanted. `shift` as in Event; `repeated` for one that is held down.
    /// False if it means nothing here either.
    bool key(Key key, int shift, bool repeated);
    /// Whether a key means the same wherever the focus is, so that a control must not have it
    /// first.
    static bool is_shortcut(Key key, int shift);
    /// The user works with the keyboard, or with the mouse: only the first sees where the focus is.
    void set_in_use(bool in_use);
    /// The program wishes a control to have the focus.
    void wish_focus(int control) { wished_ = control; }
    /// Where the focus belongs after the program changed the form.
    int focus_after_change();
    /// Marks the control that has the focus now.
    void show_focus();

private:
    bool move_focus(int control);
    bool enter();
    bool press_focused();
    /// Clicks the first button to be seen that has the mark.
    bool click_button(bool CommandButton::*mark);
    bool menu_key();
    bool shortcut(Key key, int shift, bool repeated);

    WindowEvents& events_;
    MouseInput& mouse_;
    FocusView& view_;
    bool in_use_ = false;
    int wished_ = form_itself;
};

} // namespace ostrelum::inline toolkit
