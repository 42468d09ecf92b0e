#include "platform/toolkit/Form.h"

#include <algorithm>
#include <cassert>

namespace ostrelum::inline toolkit {
namespace {

const Handler* find_handler(const Form& form, std::string_view name, EventKind kind)
{
    for (const HandlerTable& table : form.handlers) {
        for (const Handler& handler : table) {
            if (handler.kind == kind && handler.control == name)
                return &handler;
        }
    }
    return nullptr;
}

} // namespace

const void* address_of(const ControlEntry& entry)
{
    return std::visit([](auto* control) { return static_cast<const void*>(control); },
                      entry.control);
}

const ControlEntry* Form::find(std::string_view name, int index) const
{
    const auto found = std::ranges::find_if(controls, [&](const ControlEntry& entry) {
        return entry.name == name && entry.index == index;
    });
    return found == controls.end() ? nullptr : &*found;
}

const ControlEntry& Form::entry_of(const void* control) const
{
    const auto found = std::ranges::find_if(
        controls, [&](const ControlEntry& entry) { return address_of(entry) == control; });
    assert(found != controls.end());
    return *found;
}

bool Form::raise(std::string_view name, const Event& event) const
{
    const Handler* handler = find_handler(*this, name, event.kind);
    if (handler)
        (*handler)(event);
    return handler != nullptr;
}

bool Form::raise(const ControlEntry& entry, Event event) const
{
    event.index = entry.index;
    return raise(entry.name, event);
}

bool Form::listens(std::string_view name, EventKind kind) const
{
    return find_handler(*this, name, kind) != nullptr;
}

void set_value(const Form& form, ScrollBar& bar, int value)
{
    value = std::clamp(value, bar.Min, bar.Max);
    if (bar.Value == value)
        return;
    bar.Value = value;
    form.raise(form.entry_of(&bar), {.kind = EventKind::Change});
}

void set_value(const Form& form, CheckBox& box, int value)
{
    if (box.Value == value)
        return;
    box.Value = value;
    form.raise(form.entry_of(&box), {.kind = EventKind::Click});
}

void choose(const Form& form, ComboBox& list, int index)
{
    list.ListIndex = index;
    form.raise(form.entry_of(&list), {.kind = EventKind::Click});
}

} // namespace ostrelum::inline toolkit
