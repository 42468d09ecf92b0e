#include "platform/memory/MemoryWindow.h"

namespace ostrelum::memory_platform {

MemoryWindow::MemoryWindow(const Form& form, EventDispatcher& dispatcher, const Toolkit& toolkit)
    : form_(form), events_(form, dispatcher), mouse_(events_), keyboard_(events_, mouse_, *this)
{
    for (const ControlEntry& entry : form.controls)
        controls_.push_back(make_memory_control(place_of(form, entry), events_, toolkit));
}

MemoryControl& MemoryWindow::control(int place) const
{
    return *controls_.at(static_cast<std::size_t>(place));
}

void MemoryWindow::sync()
{
    frame_ = frame_of(form_);
    focused_ = keyboard_.focus_after_change();
    for (const auto& each : controls_)
        each->binding().sync();
    keyboard_.show_focus();
}

Control MemoryWindow::on_show(int place) const
{
    return control(place).on_show();
}

void MemoryWindow::button_down(Point at, int button, int shift)
{
    if (!takes_input_)
        return;
    keyboard_.set_in_use(false);
    int place = control_at(form_, at);
    if (place != form_itself && takes_focus(form_, place))
        focused_ = place;
    const bool input = place != form_itself && control(place).is_input();
    if (input && button == left_button)
        pressed_ = place;
    else
        mouse_.button_down(input ? entry_at(form_, place).container : place, button, shift, at);
}

void MemoryWindow::button_up(Point at, int button, int shift)
{
    if (button != left_button || pressed_ == form_itself) {
        mouse_.button_up(button, shift, at);
        return;
    }
    const int place = std::exchange(pressed_, form_itself);
    if (control_at(form_, at) == place)
        control(place).click();
}

void MemoryWindow::move_mouse(Point at, int buttons, int shift)
{
    if (takes_input_)
        mouse_.moved(control_at(form_, at), buttons, shift, at);
}

void MemoryWindow::press_key(Key key, int shift, bool repeated)
{
    if (!takes_input_)
        return;
    const int place = focused_;
    if (place == form_itself || !control(place).key(key))
        keyboard_.key(key, shift, repeated);
}

void MemoryWindow::drag(int place, const std::vector<int>& values)
{
    if (!takes_input_)
        return;
    for (const int value : values)
        control(place).drag(value);
    control(place).let_go();
}

} // namespace ostrelum::memory_platform
