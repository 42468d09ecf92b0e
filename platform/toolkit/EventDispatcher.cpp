#include "platform/toolkit/EventDispatcher.h"

namespace ostrelum::inline toolkit {

void EventDispatcher::raise(const Form& form, int control, const Event& event)
{
    if (syncing_)
        return;
    if (control == form_itself)
        form.raise("Form", event);
    else
        form.raise(entry_at(form, control), event);
    sync_all();
}

void EventDispatcher::sync_all()
{
    if (syncing_)
        return;
    syncing_ = true;
    show_changes_();
    syncing_ = false;
}

} // namespace ostrelum::inline toolkit
