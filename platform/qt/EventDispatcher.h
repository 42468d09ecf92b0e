#pragma once

#include "platform/toolkit/Form.h"

#include <QPoint>

#include <functional>
#include <optional>

namespace ostrelum::qt_platform {

/// The one way in which what happens on the screen reaches the program: event by event, each
/// followed by a walk over the forms that shows what it changed.
class EventDispatcher {
public:
    explicit EventDispatcher(std::function<void()> walk) : walk_(std::move(walk)) {}

    /// Raises an event of a control, or of the form itself without an entry. Nothing is raised
    /// during a walk: what widgets report then is the program's own doing.
    void raise(const Form& form, const ControlEntry* entry, const Event& event);
    /// Shows what the program changed.
    void sync_all();
    bool syncing() const { return syncing_; }

    /// Point of the screen at which a menu comes up while an event from the keyboard runs. A menu
    /// that comes up takes it.
    std::optional<QPoint> keyboard_point;

private:
    std::function<void()> walk_;
    bool syncing_ = false;
};

} // namespace ostrelum::qt_platform
