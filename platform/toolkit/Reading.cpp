#include "platform/toolkit/Reading.h"

#include "platform/toolkit/ControlTree.h"

namespace ostrelum::inline toolkit {
namespace {

const Label* label_named(const Form& form, std::string_view name, int index)
{
    const ControlEntry* entry = form.find(name, index);
    auto* const* label = entry ? std::get_if<Label*>(&entry->control) : nullptr;
    return label ? *label : nullptr;
}

/// The label's text and behind it those of the labels that go on from it.
std::string with_continuations(const Form& form, const ControlEntry& entry, const Label& label)
{
    std::string text = label.Caption;
    for (const ControlEntry& other : form.controls) {
        auto* const* tail = std::get_if<Label*>(&other.control);
        if (tail && other.index == entry.index && (*tail)->Continues == entry.name)
            text += (*tail)->Caption;
    }
    return text;
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

} // namespace ostrelum::inline toolkit
