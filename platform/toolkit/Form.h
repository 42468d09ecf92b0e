#pragma once

#include "platform/toolkit/Controls.h"
#include "platform/toolkit/Events.h"

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace ostrelum::inline toolkit {

/// Controls of one name, told apart by an index that counts from 1: LT(1) to LT(12).
template <class ControlType, std::size_t Count>
class ControlArray {
public:
    ControlType& operator()(int index) { return controls_.at(static_cast<std::size_t>(index - 1)); }
    const ControlType& operator()(int index) const
    {
        return controls_.at(static_cast<std::size_t>(index - 1));
    }
    static constexpr int count = static_cast<int>(Count);

private:
    std::array<ControlType, Count> controls_{};
};

/// A control of a form: where it is, and what holds it.
struct ControlEntry {
    std::string_view name;
    /// 1 and up in a control array, else 0.
    int index = 0;
    ControlPointer control;
    /// Place of the holding picture box or menu in Form::controls; -1 for the form itself.
    int container = -1;
};

/// A window as data: its frame, and its controls in the order in which they lie over each other,
/// the last on top.
class Form {
public:
    Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    std::string Name;
    std::string Caption;
    int ClientWidth = 0;
    int ClientHeight = 0;
    Colour BackColor = white;
    /// 32 by 32 and 16 by 16 pixels.
    std::array<Picture, 2> Icon;
    bool MinButton = false;
    MouseCursor MousePointer = MouseCursor::Default;
    /// What a screen reader calls the window; empty for its caption.
    std::string AccessibleName;

    std::vector<ControlEntry> controls;
    std::vector<HandlerTable> handlers;

    /// The control's entry; nullptr where the form has none of that name and index.
    const ControlEntry* find(std::string_view name, int index = 0) const;
    /// The entry that a control of this form stands in. The control must be this form's own.
    const ControlEntry& entry_of(const void* control) const;

    /// Runs the handler of an event of a control, or of the form itself with the name "Form". False
    /// where nobody listens.
    bool raise(std::string_view name, const Event& event) const;
    /// The same for an event of one of the form's controls; the index comes from its entry.
    bool raise(const ControlEntry& entry, Event event) const;
    /// Whether somebody listens to an event.
    bool listens(std::string_view name, EventKind kind) const;

protected:
    /// A form is put back to its first state by assigning a new one, which lists no controls yet.
    Form& operator=(Form&&) = default;
};

/// The control that an entry points to, as any type.
const void* address_of(const ControlEntry& entry);

/// Moves a slider by program. A new value raises Change, as the user's own move does.
void set_value(const Form& form, ScrollBar& bar, int value);
/// Ticks or unticks a box by program. A new value raises Click.
void set_value(const Form& form, CheckBox& box, int value);
/// Chooses an entry by program. Raises Click, whether or not it was chosen before.
void choose(const Form& form, ComboBox& list, int index);

} // namespace ostrelum::inline toolkit
