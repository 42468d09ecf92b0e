#include "platform/toolkit/Focus.h"

namespace ostrelum::inline toolkit {
namespace {

struct TakesKeys {
    bool operator()(const Label* label) const { return label->TabStop; }
    bool operator()(const PictureBox* box) const { return box->TabStop; }
    bool operator()(const Line*) const { return false; }
    bool operator()(const PopupMenu*) const { return false; }
    bool operator()(const MenuItem*) const { return false; }
    bool operator()(const Timer*) const { return false; }
    bool operator()(const auto* control) const { return control->Enabled; }
};

int count_of(const Form& form)
{
    return static_cast<int>(form.controls.size());
}

} // namespace

bool is_pressable(const Form& form, int control)
{
    if (control == form_itself)
        return false;
    const ControlPointer& which = entry_at(form, control).control;
    return std::holds_alternative<Label*>(which) || std::holds_alternative<PictureBox*>(which);
}

bool takes_focus(const Form& form, int control)
{
    return is_visible(form, control) && std::visit(TakesKeys{}, entry_at(form, control).control);
}

int next_by_tab(const Form& form, int from, bool forward)
{
    const int count = count_of(form);
    // The form itself lies before the first control and behind the last.
    int control = from == form_itself && !forward ? count : from;
    for (int tried = 0; tried < count; ++tried) {
        control = (control + (forward ? 1 : count - 1)) % count;
        if (takes_focus(form, control))
            return control;
    }
    return form_itself;
}

int next_by_arrow(const Form& form, int from, Key key)
{
    if (from == form_itself)
        return form_itself;
    const int count = count_of(form);
    const int step = key == Key::Down || key == Key::Home ? 1 : -1;
    int control = from + step;
    if (key == Key::Home)
        control = 0;
    if (key == Key::End)
        control = count - 1;
    for (; control >= 0 && control < count; control += step) {
        const bool same_array = entry_at(form, control).name == entry_at(form, from).name;
        if (same_array && takes_focus(form, control))
            return control;
    }
    return form_itself;
}

int focus_after_change(const Form& form, int focused)
{
    if (focused == form_itself || takes_focus(form, focused))
        return focused;
    const bool disabled = is_visible(form, focused) && !is_pressable(form, focused);
    return disabled ? next_by_tab(form, focused, true) : form_itself;
}

} // namespace ostrelum::inline toolkit
