#include "platform/toolkit/InputBindings.h"

namespace ostrelum::inline toolkit {

void ScrollBarBinding::user_grabs()
{
    held_ = true;
    value_when_grabbed_ = control_.Value;
}

void ScrollBarBinding::user_moves(int value)
{
    if (!events_.syncing())
        user_changed(&ScrollBar::Value, value, held_ ? EventKind::Scroll : EventKind::Change);
}

void ScrollBarBinding::user_lets_go()
{
    held_ = false;
    if (control_.Value != value_when_grabbed_)
        raise(EventKind::Change);
}

void CheckBoxBinding::user_ticks(bool ticked)
{
    if (!events_.syncing())
        user_changed(&CheckBox::Value, ticked ? 1 : 0, EventKind::Click);
}

void ComboBoxBinding::user_chooses(int index)
{
    user_changed(&ComboBox::ListIndex, index, EventKind::Click);
}

} // namespace ostrelum::inline toolkit
