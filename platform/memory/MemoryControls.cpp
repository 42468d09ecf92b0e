#include "platform/memory/MemoryControls.h"

#include <algorithm>

namespace ostrelum::memory_platform {
namespace {

template <class Binding, class ControlType>
class Shown : public MemoryControl, public Binding {
public:
    using Binding::Binding;
    ControlBinding& binding() override { return *this; }
    Control on_show() const override { return this->shown().value_or(ControlType{}); }

protected:
    void apply() override {}
};

template <class ControlType>
using Still = Shown<BindingOf<ControlType>, ControlType>;

class MemoryLabel : public Shown<BindingOf<Label>, Label> {
public:
    MemoryLabel(Label& label, int place, WindowEvents& events, const Toolkit& toolkit)
        : Shown(label, place, events), toolkit_(toolkit)
    {
    }

private:
    void apply() override { fit(toolkit_, control_); }

    const Toolkit& toolkit_;
};

/// What takes the left button and keys of its own.
template <class Binding, class ControlType>
class Input : public Shown<Binding, ControlType> {
public:
    using Shown<Binding, ControlType>::Shown;
    bool is_input() const override { return true; }
    bool key(Key key) override
    {
        if (key == Key::Space)
            this->click();
        return key == Key::Space;
    }
};

class MemoryButton : public Input<CommandButtonBinding, CommandButton> {
public:
    using Input::Input;
    void click() override
    {
        if (control_.Enabled)
            user_clicks();
    }
};

class MemoryCheckBox : public Input<CheckBoxBinding, CheckBox> {
public:
    using Input::Input;
    void click() override
    {
        if (control_.Enabled)
            user_ticks(control_.Value == 0);
    }
};

class MemoryScrollBar : public Input<ScrollBarBinding, ScrollBar> {
public:
    using Input::Input;
    bool key(Key key) override
    {
        switch (key) {
        case Key::Left: return move_to(control_.Value - control_.SmallChange);
        case Key::Right: return move_to(control_.Value + control_.SmallChange);
        case Key::PageUp: return move_to(control_.Value - control_.LargeChange);
        case Key::PageDown: return move_to(control_.Value + control_.LargeChange);
        case Key::Home: return move_to(control_.Min);
        case Key::End: return move_to(control_.Max);
        default: return false;
        }
    }
    void drag(int value) override
    {
        if (!std::exchange(held_, true))
            user_grabs();
        move_to(value);
    }
    void let_go() override
    {
        held_ = false;
        user_lets_go();
    }

private:
    bool move_to(int value)
    {
        value = std::clamp(value, control_.Min, control_.Max);
        if (value != control_.Value)
            user_moves(value);
        return true;
    }

    bool held_ = false;
};

class MemoryComboBox : public Input<ComboBoxBinding, ComboBox> {
public:
    using Input::Input;
    bool key(Key key) override
    {
        if (key != Key::Up && key != Key::Down)
            return false;
        const int entry = control_.ListIndex + (key == Key::Down ? 1 : -1);
        if (entry >= 0 && entry < static_cast<int>(control_.List.size()))
            user_chooses(entry);
        return true;
    }
};

struct Maker {
    int place;
    WindowEvents& events;
    const Toolkit& toolkit;

    using Made = std::unique_ptr<MemoryControl>;
    Made operator()(Label* label) const
    {
        return std::make_unique<MemoryLabel>(*label, place, events, toolkit);
    }
    Made operator()(CommandButton* button) const { return make<MemoryButton>(button); }
    Made operator()(CheckBox* box) const { return make<MemoryCheckBox>(box); }
    Made operator()(ScrollBar* bar) const { return make<MemoryScrollBar>(bar); }
    Made operator()(ComboBox* box) const { return make<MemoryComboBox>(box); }
    template <class ControlType>
    Made operator()(ControlType* control) const
    {
        return make<Still<ControlType>>(control);
    }
    template <class Made_>
    Made make(auto* control) const
    {
        return std::make_unique<Made_>(*control, place, events);
    }
};

} // namespace

std::unique_ptr<MemoryControl> make_memory_control(int place, WindowEvents& events,
                                                   const Toolkit& toolkit)
{
    return std::visit(Maker{place, events, toolkit}, entry_at(events.form(), place).control);
}

} // namespace ostrelum::memory_platform
