#pragma once

#include "platform/toolkit/Form.h"

#include <vector>

namespace ostrelum::inline toolkit {

/// Places in Form::controls of the entries that a menu contains, in their order.
std::vector<int> entries_of(const Form& form, const PopupMenu& menu);

/// Whether an entry is a line between others.
inline bool is_separator(const MenuItem& item)
{
    return item.Caption == "-";
}

} // namespace ostrelum::inline toolkit
