#pragma once

#include "platform/toolkit/EventDispatcher.h"

#include <optional>
#include <type_traits>

namespace ostrelum::inline toolkit {

/// Keeps one control and what shows it the same: the window shows what the control says, and what
/// the user does there comes back.
class ControlBinding {
public:
    ControlBinding() = default;
    ControlBinding(const ControlBinding&) = delete;
    ControlBinding& operator=(const ControlBinding&) = delete;
    virtual ~ControlBinding() = default;

    /// Shows what the control says.
    virtual void sync() = 0;
    /// The next sync() shows all of it anew, as on another screen.
    virtual void forget() = 0;
    /// The window closes: nothing may raise an event by itself any more, as a timer does.
    virtual void stop() {}
};

/// Keeps a copy of the control that is on show, so that only what differs is shown anew.
template <class ControlType>
class BindingOf : public ControlBinding {
public:
    /// `place` is the control's in Form::controls.
    BindingOf(ControlType& control, int place, WindowEvents& events)
        : control_(control), place_(place), events_(events)
    {
    }
    void sync() final
    {
        if (shown_ == control_)
            return;
        apply();
        shown_ = control_;
    }
    void forget() final { shown_.reset(); }

protected:
    /// Shows each field that differs: see changed().
    virtual void apply() = 0;

    /// One of the fields differs from what is on show.
    template <class... Fields>
    bool changed(Fields ControlType::*... fields) const
    {
        return !shown_ || ((*shown_.*fields != control_.*fields) || ...);
    }
    bool moved() const
    {
        return changed(&ControlType::Left, &ControlType::Top, &ControlType::Width,
                       &ControlType::Height);
    }
    /// The user changed a field, which shows already, and raises an event of it.
    template <class Field>
    void user_changed(Field ControlType::*field, std::type_identity_t<Field> value, EventKind kind)
    {
        control_.*field = value;
        if (shown_)
            *shown_.*field = value;
        raise(kind);
    }
    void raise(EventKind kind) { events_.raise(place_, {.kind = kind}); }
    /// What the user sees; nothing before the first sync().
    const std::optional<ControlType>& shown() const { return shown_; }

    ControlType& control_;
    const int place_;
    WindowEvents& events_;

private:
    std::optional<ControlType> shown_;
};

} // namespace ostrelum::inline toolkit
