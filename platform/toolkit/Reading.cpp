#include "platform/toolkit/Reading.h"

#include <algorithm>

namespace ostrelum::inline toolkit {
namespace {

const Label* label_named(const Form& form, std::string_view name, int index)
{
    const ControlEntry* entry = form.find(name, index);
    auto* const* label = entry ? std::get_if<Label*>(&entry->control) : nullptr;
    return label ? *label : nullptr;
}

/// Calls with each label that goes on from another one.
template <class Each>
void for_each_continuation(const Form& form, const ControlEntry& entry, Each each)
{
    for (const ControlEntry& other : form.controls) {
        auto* const* tail = std::get_if<Label*>(&other.control);
        if (tail && other.index == entry.index && (*tail)->Continues == entry.name)
            each(**tail, other);
    }
}

/// The label's text and behind it those of the labels that go on from it.
std::string with_continuations(const Form& form, const ControlEntry& entry, const Label& label)
{
    std::string text = label.Caption;
    for_each_continuation(form, entry,
                          [&](const Label& tail, const ControlEntry&) { text += tail.Caption; });
    return text;
}

/// Where the first picture begins that lies over the right part of an area.
int seen_until(const Form& form, int control, const Area& area)
{
    int end = area.left + area.width;
    for (int over = control + 1; over < static_cast<int>(form.controls.size()); ++over) {
        const ControlEntry& entry = entry_at(form, over);
        if (!std::holds_alternative<PictureBox*>(entry.control) || !is_visible(form, over))
            continue;
        const Area picture = area_on_form(form, over);
        if (picture.left > area.left && picture.top < area.top + area.height &&
            area.top < picture.top + picture.height)
            end = std::min(end, picture.left);
    }
    return end;
}

struct ReadingOf {
    const Form& form;
    const ControlEntry& entry;

    std::string operator()(const Label* label) const
    {
        const Label* head = label_named(form, label->Continues, entry.index);
        const bool read_elsewhere = label->Silent || (head && !head->Caption.empty());
        return read_elsewhere ? "" : with_continuations(form, entry, *label);
    }
    std::string operator()(const PictureBox* box) const { return box->AccessibleName; }
    std::string operator()(const ScrollBar* bar) const { return bar->AccessibleName; }
    std::string operator()(const ComboBox* list) const { return list->AccessibleName; }
    std::string operator()(const CommandButton* button) const { return button->Caption; }
    std::string operator()(const CheckBox* box) const { return box->Caption; }
    std::string operator()(const MenuItem* item) const { return item->Caption; }
    std::string operator()(const auto*) const { return {}; }
};

} // namespace

std::string reading_of(const Form& form, int control)
{
    if (control == form_itself)
        return form.AccessibleName.empty() ? form.Caption : form.AccessibleName;
    const ControlEntry& entry = entry_at(form, control);
    return std::visit(ReadingOf{form, entry}, entry.control);
}

Area area_of_reading(const Form& form, int control)
{
    Area area = area_on_form(form, control);
    auto* const* label = std::get_if<Label*>(&entry_at(form, control).control);
    if (!label || (*label)->Role != LabelRole::Row)
        return area;
    for_each_continuation(form, entry_at(form, control),
                          [&](const Label& tail, const ControlEntry& entry) {
                              const Area more = area_on_form(form, place_of(form, entry));
                              if (!tail.Caption.empty())
                                  area.width = more.left + more.width - area.left;
                          });
    area.width = seen_until(form, control, area) - area.left;
    return area;
}

} // namespace ostrelum::inline toolkit
