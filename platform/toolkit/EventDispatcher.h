#pragma once

#include "platform/toolkit/ControlTree.h"

#include <functional>
#include <optional>
#include <utility>

namespace ostrelum::inline toolkit {

/// The one way in which what happens on the screen reaches the program: event by event, each
/// followed by a walk over all windows that shows what the event changed.
class EventDispatcher {
public:
    explicit EventDispatcher(std::function<void()> show_changes)
        : show_changes_(std::move(show_changes))
    {
    }

    /// Raises an event of a control, or of the form itself. Nothing is raised during a walk: what
    /// the toolkit's own controls report then is the program's doing.
    void raise(const Form& form, int control, const Event& event);
    /// Shows what the program changed.
    void sync_all();
    bool syncing() const { return syncing_; }

private:
    std::function<void()> show_changes_;
    bool syncing_ = false;
};

/// The events of one form, from its window to the dispatcher.
class WindowEvents {
public:
    WindowEvents(const Form& form, EventDispatcher& dispatcher)
        : form_(form), dispatcher_(dispatcher)
    {
    }

    /// Raises an event of a control, or of the form itself, while the window is there: an event may
    /// take the window away, and what was to follow from the same press then must not come.
    void raise(int control, const Event& event)
    {
        if (open_)
            dispatcher_.raise(form_, control, event);
    }
    /// The window closes: no further event of it is raised.
    void close() { open_ = false; }
    bool syncing() const { return dispatcher_.syncing(); }
    const Form& form() const { return form_; }

    /// Point of the client area at which a menu comes up while an event from the keyboard runs. A
    /// menu that comes up takes it.
    std::optional<Point> menu_point;

private:
    const Form& form_;
    EventDispatcher& dispatcher_;
    bool open_ = true;
};

} // namespace ostrelum::inline toolkit
