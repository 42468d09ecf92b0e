#include "platform/windows/toolkit/ControlWindow.h"
#include "platform/windows/toolkit/InputControls.h"
#include "platform/windows/toolkit/PaintedControls.h"
#include "platform/windows/toolkit/TimerBinding.h"

namespace ostrelum::windows_platform {
namespace {

struct Maker {
    int number;
    FormHost& host;
    WindowEvents& events;

    template <class Window>
    ControlParts make(auto* control) const
    {
        auto made = std::make_unique<Window>(*control, number, host, events);
        ControlWindow* window = made.get();
        return {std::move(made), window};
    }
    ControlParts operator()(Label* control) const { return make<LabelWindow>(control); }
    ControlParts operator()(PictureBox* control) const { return make<PictureWindow>(control); }
    ControlParts operator()(Line* control) const { return make<LineWindow>(control); }
    ControlParts operator()(CommandButton* control) const { return make<ButtonWindow>(control); }
    ControlParts operator()(ScrollBar* control) const { return make<SliderWindow>(control); }
    ControlParts operator()(CheckBox* control) const { return make<TickWindow>(control); }
    ControlParts operator()(ComboBox* control) const { return make<ListWindow>(control); }
    ControlParts operator()(PopupMenu*) const { return {}; }
    ControlParts operator()(MenuItem*) const { return {}; }
    ControlParts operator()(Timer* control) const
    {
        return {std::make_unique<TimerBinding>(*control, number, host.window(form_itself), events),
                nullptr};
    }
};

} // namespace

ControlParts make_control(int control, FormHost& host, WindowEvents& events)
{
    return std::visit(Maker{control, host, events}, entry_at(host.form(), control).control);
}

} // namespace ostrelum::windows_platform
