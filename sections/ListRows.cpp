#include "sections/ListRows.h"

#include "frame/Page.h"

namespace ostrelum {

void set_list_row(int row, const std::string& title, const std::string& list, std::size_t tail)
{
    set_title(row, title + " ");
    attempt([&] { set_bare_value(row, without_tail(list, tail)); });
    F1.L(row).ToolTipText = F1.L(row).Caption;
}

} // namespace ostrelum
