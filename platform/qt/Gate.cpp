#include "platform/qt/Gate.h"

namespace ostrelum {

void Gate::raise(const Form& form, const ControlEntry* entry, const Event& event)
{
    if (carrying_)
        return;
    if (entry)
        form.raise(*entry, event);
    else
        form.raise("Form", event);
    carry_over();
}

void Gate::carry_over()
{
    if (carrying_)
        return;
    carrying_ = true;
    walk_();
    carrying_ = false;
}

} // namespace ostrelum
