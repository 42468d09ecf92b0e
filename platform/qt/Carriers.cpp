#include "platform/qt/Carrier.h"
#include "platform/qt/InputCarriers.h"
#include "platform/qt/LabelCarrier.h"
#include "platform/qt/LineCarrier.h"
#include "platform/qt/PictureCarrier.h"
#include "platform/qt/TimerCarrier.h"

namespace ostrelum {
namespace {

struct Maker {
    const ControlEntry& entry;
    QWidget& parent;
    const Surroundings& around;
    using Made = std::unique_ptr<Carrier>;

    template <class CarrierType>
    Made widget(auto* control) const
    {
        return std::make_unique<CarrierType>(*control, entry, parent, around);
    }
    Made operator()(Label* control) const { return widget<LabelCarrier>(control); }
    Made operator()(PictureBox* control) const { return widget<PictureCarrier>(control); }
    Made operator()(Line* control) const { return widget<LineCarrier>(control); }
    Made operator()(CommandButton* control) const { return widget<ButtonCarrier>(control); }
    Made operator()(ScrollBar* control) const { return widget<ScrollBarCarrier>(control); }
    Made operator()(CheckBox* control) const { return widget<CheckBoxCarrier>(control); }
    Made operator()(ComboBox* control) const { return widget<ComboBoxCarrier>(control); }
    Made operator()(PopupMenu*) const { return nullptr; }
    Made operator()(MenuItem*) const { return nullptr; }
    Made operator()(Timer* control) const
    {
        return std::make_unique<TimerCarrier>(*control, entry, around);
    }
};

} // namespace

std::unique_ptr<Carrier> make_carrier(const ControlEntry& entry, QWidget& parent,
                                      const Surroundings& around)
{
    return std::visit(Maker{entry, parent, around}, entry.control);
}

} // namespace ostrelum
