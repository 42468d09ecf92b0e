#include "platform/toolkit/Menus.h"

#include "platform/toolkit/ControlTree.h"

namespace ostrelum::inline toolkit {

std::vector<int> entries_of(const Form& form, const PopupMenu& menu)
{
    const int holder = place_of(form, form.entry_of(&menu));
    std::vector<int> entries;
    for (const ControlEntry& entry : form.controls) {
        if (entry.container == holder && std::holds_alternative<MenuItem*>(entry.control))
            entries.push_back(place_of(form, entry));
    }
    return entries;
}

} // namespace ostrelum::inline toolkit
