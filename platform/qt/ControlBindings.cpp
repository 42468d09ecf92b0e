#include "platform/qt/ControlBinding.h"
#include "platform/qt/InputBindings.h"
#include "platform/qt/LabelBinding.h"
#include "platform/qt/LineBinding.h"
#include "platform/qt/PictureBinding.h"
#include "platform/qt/TimerBinding.h"

namespace ostrelum::qt_platform {
namespace {

struct Maker {
    const ControlEntry& entry;
    QWidget& parent;
    const WindowContext& context;
    using Made = std::unique_ptr<ControlBinding>;

    template <class BindingType>
    Made widget(auto* control) const
    {
        return std::make_unique<BindingType>(*control, entry, parent, context);
    }
    Made operator()(Label* control) const { return widget<LabelBinding>(control); }
    Made operator()(PictureBox* control) const { return widget<PictureBinding>(control); }
    Made operator()(Line* control) const { return widget<LineBinding>(control); }
    Made operator()(CommandButton* control) const { return widget<ButtonBinding>(control); }
    Made operator()(ScrollBar* control) const { return widget<ScrollBarBinding>(control); }
    Made operator()(CheckBox* control) const { return widget<CheckBoxBinding>(control); }
    Made operator()(ComboBox* control) const { return widget<ComboBoxBinding>(control); }
    Made operator()(PopupMenu*) const { return nullptr; }
    Made operator()(MenuItem*) const { return nullptr; }
    Made operator()(Timer* control) const
    {
        return std::make_unique<TimerBinding>(*control, entry, context);
    }
};

} // namespace

std::unique_ptr<ControlBinding> make_binding(const ControlEntry& entry, QWidget& parent,
                                             const WindowContext& context)
{
    return std::visit(Maker{entry, parent, context}, entry.control);
}

} // namespace ostrelum::qt_platform
