#include "platform/toolkit/Reading.h"
#include "platform/windows/services/Wide.h"
#include "platform/windows/toolkit/Accessible.h"
#include "platform/windows/toolkit/FormWindow.h"

/// What of a form's window a screen reader is told.
namespace ostrelum::windows_platform {
namespace {

struct Part {
    LONG role;
    LONG state;
    const wchar_t* action;
    std::string value;
};

/// A label or picture that the keyboard can press.
Part part_of(LabelRole role, bool chosen)
{
    switch (role) {
    case LabelRole::Tab:
        return {ROLE_SYSTEM_PAGETAB, STATE_SYSTEM_SELECTABLE | (chosen ? STATE_SYSTEM_SELECTED : 0),
                L"Switch"};
    case LabelRole::Link: return {ROLE_SYSTEM_LINK, STATE_SYSTEM_LINKED, L"Jump", {}};
    case LabelRole::Row: return {ROLE_SYSTEM_STATICTEXT, STATE_SYSTEM_READONLY, L"", {}};
    case LabelRole::Button: break;
    }
    return {ROLE_SYSTEM_PUSHBUTTON, 0, L"Press", {}};
}

struct PartOf {
    Part operator()(const Label* label) const
    {
        return label->TabStop ? part_of(label->Role, label->Chosen)
                              : Part{ROLE_SYSTEM_STATICTEXT, STATE_SYSTEM_READONLY, L"", {}};
    }
    Part operator()(const PictureBox* box) const
    {
        return box->TabStop ? part_of(LabelRole::Button, false)
                            : Part{ROLE_SYSTEM_GRAPHIC, 0, L"", {}};
    }
    Part operator()(const Line*) const { return {ROLE_SYSTEM_SEPARATOR, 0, L"", {}}; }
    Part operator()(const ScrollBar* bar) const
    {
        return {ROLE_SYSTEM_SLIDER, 0, L"", std::to_string(bar->Value)};
    }
    Part operator()(const ComboBox* list) const
    {
        const auto chosen = static_cast<std::size_t>(list->ListIndex);
        return {ROLE_SYSTEM_COMBOBOX, STATE_SYSTEM_HASPOPUP, L"Open",
                chosen < list->List.size() ? list->List[chosen] : ""};
    }
    Part operator()(const auto*) const { return {}; }
};

/// A button's or a tick box's text is all that there is to tell.
bool speaks_for_itself(const Form& form, int control)
{
    const ControlPointer& which = entry_at(form, control).control;
    return std::holds_alternative<CommandButton*>(which) ||
           std::holds_alternative<CheckBox*>(which);
}

} // namespace

/// A window with a name of its own is a dialog; of any other the caption says enough.
std::optional<LRESULT> FormWindow::answer_reader_of_form(const Message& message)
{
    if (form_.AccessibleName.empty() || message.number == press_control)
        return std::nullopt;
    if (message.number == WM_GETOBJECT) {
        const bool asks_for_client = static_cast<LONG>(message.second) == LONG{OBJID_CLIENT};
        const LRESULT object = asks_for_client ? accessible_object(handle(), message.first) : 0;
        return object != 0 ? std::optional(object) : std::nullopt;
    }
    auto& spoken = *reinterpret_cast<Spoken*>(message.second);
    spoken.name = wide(reading_of(form_, form_itself));
    spoken.role = ROLE_SYSTEM_DIALOG;
    return TRUE;
}

std::optional<LRESULT> FormWindow::answer_reader(int control, const Message& message)
{
    if (message.number == WM_GETOBJECT) {
        const bool asks_for_client = static_cast<LONG>(message.second) == LONG{OBJID_CLIENT};
        const LRESULT object = asks_for_client && !speaks_for_itself(form_, control)
                                   ? accessible_object(window(control), message.first)
                                   : 0;
        return object != 0 ? std::optional(object) : std::nullopt;
    }
    if (message.number == press_control) {
        if (is_input(control))
            SendMessageW(window(control), CB_SHOWDROPDOWN, TRUE, 0);
        else
            mouse_.press(control, left_button);
        return 0;
    }
    auto& spoken = *reinterpret_cast<Spoken*>(message.second);
    const std::string name = reading_of(form_, control);
    const Part part = std::visit(PartOf{}, entry_at(form_, control).control);
    spoken.name = wide(name);
    spoken.role = part.role;
    spoken.state = part.state;
    spoken.action = part.action;
    spoken.value = wide(part.value);
    if (takes_focus(form_, control))
        spoken.state |=
            STATE_SYSTEM_FOCUSABLE | (GetFocus() == window(control) ? STATE_SYSTEM_FOCUSED : 0);
    if (name.empty())
        spoken.state |= STATE_SYSTEM_INVISIBLE;
    return TRUE;
}

/// Readers are told when a text has changed, also one that they read with another.
void FormWindow::tell_readers()
{
    readings_.resize(controls_.size());
    for (int control = 0; control < static_cast<int>(controls_.size()); ++control) {
        std::string& told = readings_[static_cast<std::size_t>(control)];
        std::string reading = reading_of(form_, control);
        if (window(control) && reading != told)
            NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, window(control), OBJID_CLIENT, CHILDID_SELF);
        told = std::move(reading);
    }
}

} // namespace ostrelum::windows_platform
