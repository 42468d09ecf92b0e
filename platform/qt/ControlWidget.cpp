#include "platform/qt/ControlWidget.h"

#include "platform/qt/InputBindings.h"
#include "platform/qt/LabelBinding.h"
#include "platform/qt/LineBinding.h"
#include "platform/qt/PictureBinding.h"
#include "platform/qt/TimerBinding.h"

namespace ostrelum::qt_platform {
namespace {

struct Maker {
    int place;
    QWidget& parent;
    const WindowContext& context;

    template <class BindingType>
    ControlWidget make(auto* control) const
    {
        auto binding = std::make_unique<BindingType>(*control, place, parent, context);
        QWidget* widget = binding->widget();
        return {std::move(binding), widget};
    }
    ControlWidget operator()(Label* control) const { return make<QtLabelBinding>(control); }
    ControlWidget operator()(PictureBox* control) const { return make<QtPictureBinding>(control); }
    ControlWidget operator()(Line* control) const { return make<QtLineBinding>(control); }
    ControlWidget operator()(CommandButton* control) const
    {
        return make<QtButtonBinding>(control);
    }
    ControlWidget operator()(ScrollBar* control) const { return make<QtScrollBarBinding>(control); }
    ControlWidget operator()(CheckBox* control) const { return make<QtCheckBoxBinding>(control); }
    ControlWidget operator()(ComboBox* control) const { return make<QtComboBoxBinding>(control); }
    ControlWidget operator()(PopupMenu*) const { return {}; }
    ControlWidget operator()(MenuItem*) const { return {}; }
    ControlWidget operator()(Timer* control) const
    {
        return {std::make_unique<QtTimerBinding>(*control, place, context.events), nullptr};
    }
};

} // namespace

ControlWidget make_control_widget(int place, QWidget& parent, const WindowContext& context)
{
    return std::visit(Maker{place, parent, context},
                      entry_at(context.events.form(), place).control);
}

} // namespace ostrelum::qt_platform
