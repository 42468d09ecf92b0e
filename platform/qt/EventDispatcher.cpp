#include "platform/qt/EventDispatcher.h"

namespace ostrelum::qt_platform {

void EventDispatcher::raise(const Form& form, const ControlEntry* entry, const Event& event)
{
    if (syncing_)
        return;
    if (entry)
        form.raise(*entry, event);
    else
        form.raise("Form", event);
    sync_all();
}

void EventDispatcher::sync_all()
{
    if (syncing_)
        return;
    syncing_ = true;
    walk_();
    syncing_ = false;
}

} // namespace ostrelum::qt_platform
