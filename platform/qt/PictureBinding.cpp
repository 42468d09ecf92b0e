#include "platform/qt/PictureBinding.h"

#include "platform/qt/Text.h"

namespace ostrelum::qt_platform {

PictureBinding::PictureBinding(PictureBox& box, const ControlEntry& entry, QWidget& parent,
                               const WindowContext& context)
    : BindingOf(box, entry, context), widget_(new PictureWidget(&parent)),
      mouse_(new MouseEventFilter(*widget_, &entry, context))
{
    widget_->press = [this] { press(LeftButton); };
}

bool PictureBinding::press(int button)
{
    mouse_->press(button);
    return true;
}

void PictureBinding::apply()
{
    place(*widget_);
    if (changed(&PictureBox::Transparent, &PictureBox::BackColor))
        widget_->set_ground(control_.Transparent, control_.BackColor);
    if (changed(&PictureBox::Surface))
        widget_->set_picture(control_.Surface);
    if (changed(&PictureBox::ToolTipText))
        widget_->setToolTip(qt_text(control_.ToolTipText));
    if (changed(&PictureBox::AccessibleName))
        widget_->setAccessibleName(qt_text(control_.AccessibleName));
    if (changed(&PictureBox::MousePointer))
        context_.cursors.set(*widget_, control_.MousePointer);
    if (changed(&PictureBox::TabStop))
        widget_->setFocusPolicy(control_.TabStop ? Qt::StrongFocus : Qt::NoFocus);
    appear(*widget_);
}

} // namespace ostrelum::qt_platform
