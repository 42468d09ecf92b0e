#pragma once

#include "platform/toolkit/ControlBinding.h"

/// The controls of which the user changes the value: it stands in the data before the event is
/// raised. What a widget reports while sync() runs is the program's own change and raises nothing.
namespace ostrelum::inline toolkit {

class ScrollBarBinding : public BindingOf<ScrollBar> {
public:
    using BindingOf::BindingOf;
    /// The user takes hold of the slider: it scrolls until it is let go.
    void user_grabs();
    void user_moves(int value);
    void user_lets_go();

private:
    bool held_ = false;
    int value_when_grabbed_ = 0;
};

class CheckBoxBinding : public BindingOf<CheckBox> {
public:
    using BindingOf::BindingOf;
    void user_ticks(bool ticked);
};

class ComboBoxBinding : public BindingOf<ComboBox> {
public:
    using BindingOf::BindingOf;
    /// Also when the entry was chosen before.
    void user_chooses(int index);
};

class CommandButtonBinding : public BindingOf<CommandButton> {
public:
    using BindingOf::BindingOf;
    void user_clicks() { raise(EventKind::Click); }
};

} // namespace ostrelum::inline toolkit
