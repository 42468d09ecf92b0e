#pragma once

#include "platform/qt/Cursors.h"
#include "platform/qt/EventDispatcher.h"
#include "platform/toolkit/Toolkit.h"

#include <QWidget>

#include <memory>
#include <optional>

namespace ostrelum::qt_platform {

/// What the parts of a form's window share.
struct WindowContext {
    const Form& form;
    const Toolkit& toolkit;
    EventDispatcher& dispatcher;
    const Cursors& cursors;
};

/// Keeps one control and its widget the same: the widget shows what the control says, and what the
/// user does with it comes back.
class ControlBinding {
public:
    ControlBinding() = default;
    ControlBinding(const ControlBinding&) = delete;
    ControlBinding& operator=(const ControlBinding&) = delete;
    virtual ~ControlBinding() = default;

    /// Makes the widget show what the control says.
    virtual void sync() = 0;
    /// The control's widget; nullptr for what has none.
    virtual QWidget* widget() const = 0;
    /// Presses the control in its middle as a mouse button would. False for a control that knows no
    /// press.
    virtual bool press(int button) = 0;
    /// The window goes: nothing is to come of its own accord any more.
    virtual void stop() = 0;
};

/// The binding of a control to a widget, as a child of `parent`; nullptr for a menu and its
/// entries.
std::unique_ptr<ControlBinding> make_binding(const ControlEntry& entry, QWidget& parent,
                                             const WindowContext& context);

/// Keeps a copy of the control that is on show.
template <class ControlType>
class BindingOf : public ControlBinding {
public:
    BindingOf(ControlType& control, const ControlEntry& entry, const WindowContext& context)
        : control_(control), entry_(entry), context_(context)
    {
    }
    void sync() final
    {
        if (shown_ == control_)
            return;
        apply();
        shown_ = control_;
    }
    bool press(int) override { return false; }
    void stop() override {}

protected:
    /// Hands the widget each field that differs: see changed().
    virtual void apply() = 0;

    /// One of the fields differs from what is on show.
    template <class... Fields>
    bool changed(Fields ControlType::*... fields) const
    {
        return !shown_ || ((*shown_.*fields != control_.*fields) || ...);
    }
    /// The user changed a field: the widget shows it already.
    template <class Field>
    void take(Field ControlType::*field, Field value)
    {
        control_.*field = value;
        if (shown_)
            *shown_.*field = value;
    }
    void raise(EventKind kind)
    {
        context_.dispatcher.raise(context_.form, &entry_, {.kind = kind});
    }
    void place(QWidget& widget) const
    {
        if (changed(&ControlType::Left, &ControlType::Top, &ControlType::Width,
                    &ControlType::Height))
            widget.setGeometry(control_.Left, control_.Top, control_.Width, control_.Height);
    }
    /// Shows or hides the widget. The focus does not jump from a widget that goes to the next one,
    /// but falls back to the window.
    void appear(QWidget& widget) const
    {
        if (!changed(&ControlType::Visible))
            return;
        const QWidget* focus = widget.window()->focusWidget();
        if (!control_.Visible && focus && (focus == &widget || widget.isAncestorOf(focus)))
            widget.window()->setFocus(Qt::OtherFocusReason);
        widget.setVisible(control_.Visible);
    }

    ControlType& control_;
    const ControlEntry& entry_;
    const WindowContext context_;

private:
    std::optional<ControlType> shown_;
};

} // namespace ostrelum::qt_platform
