#include "platform/toolkit/Toolkit.h"

namespace ostrelum::inline toolkit {

bool Unload(Toolkit& toolkit, Form& form)
{
    bool cancel = false;
    form.raise("Form", {.kind = EventKind::Unload, .cancel = &cancel});
    if (!cancel)
        toolkit.Hide(form);
    return !cancel;
}

void fit(const Toolkit& toolkit, Label& label)
{
    if (!sizes_itself(label))
        return;
    const TextSize size = toolkit.text_size(label.Caption, label.Font);
    label.Width = size.width;
    label.Height = size.height;
}

} // namespace ostrelum::inline toolkit
