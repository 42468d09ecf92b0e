#include "platform/toolkit/Focus.h"

#include "platform/toolkit/Reading.h"

#include <algorithm>
#include <vector>

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

const Label* label_at(const Form& form, int control)
{
    if (control == form_itself)
        return nullptr;
    auto* const* label = std::get_if<Label*>(&entry_at(form, control).control);
    return label ? *label : nullptr;
}

bool has_role(const Form& form, int control, LabelRole role)
{
    const Label* label = label_at(form, control);
    return label && label->Role == role;
}

template <class Wanted>
int first_focus(const Form& form, Wanted wanted)
{
    for (int control = 0; control < count_of(form); ++control) {
        if (takes_focus(form, control) && wanted(control))
            return control;
    }
    return form_itself;
}

int first_row(const Form& form)
{
    return first_focus(form, [&](int at) { return has_role(form, at, LabelRole::Row); });
}

int chosen_tab(const Form& form)
{
    return first_focus(form, [&](int at) {
        return has_role(form, at, LabelRole::Tab) && label_at(form, at)->Chosen;
    });
}

/// Where Tab stops, in its order; of the rows the first alone, which stands behind all others.
std::vector<int> tab_stops(const Form& form)
{
    std::vector<int> stops;
    for (int control = 0; control < count_of(form); ++control) {
        if (takes_focus(form, control) && !has_role(form, control, LabelRole::Row))
            stops.push_back(control);
    }
    if (const int row = first_row(form); row != form_itself)
        stops.push_back(row);
    return stops;
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
    if (!is_visible(form, control) || !std::visit(TakesKeys{}, entry_at(form, control).control))
        return false;
    return !has_role(form, control, LabelRole::Row) || !reading_of(form, control).empty();
}

int next_by_tab(const Form& form, int from, bool forward)
{
    const std::vector<int> stops = tab_stops(form);
    if (stops.empty())
        return form_itself;
    // The form itself lies before the first control and behind the last.
    if (from == form_itself)
        return forward ? stops.front() : stops.back();
    const auto order = [&](int stop) {
        return has_role(form, stop, LabelRole::Row) ? count_of(form) : stop;
    };
    if (forward) {
        const auto next = std::ranges::upper_bound(stops, order(from), {}, order);
        return next == stops.end() ? stops.front() : *next;
    }
    const auto behind = std::ranges::lower_bound(stops, order(from), {}, order);
    return behind == stops.begin() ? stops.back() : *std::prev(behind);
}

int next_by_arrow(const Form& form, int from, Key key)
{
    if (key == Key::Left)
        return has_role(form, from, LabelRole::Row) ? chosen_tab(form) : form_itself;
    if (key == Key::Right)
        return has_role(form, from, LabelRole::Tab) ? first_row(form) : form_itself;
    const bool from_above = from == form_itself && (key == Key::Down || key == Key::Home);
    const int start = from == form_itself ? first_row(form) : from;
    if (start == form_itself || from_above)
        return start;
    const bool forward = key == Key::Down || key == Key::Home;
    const int step = forward ? 1 : -1;
    const bool whole_way = key == Key::Home || key == Key::End || from == form_itself;
    int control = start + step;
    if (whole_way)
        control = forward ? 0 : count_of(form) - 1;
    for (; control >= 0 && control < count_of(form); control += step) {
        const bool same_array = entry_at(form, control).name == entry_at(form, start).name;
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
