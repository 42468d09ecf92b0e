#include "platform/qt/PictureBinding.h"

#include "platform/qt/MouseEventFilter.h"
#include "platform/qt/Text.h"

namespace ostrelum::qt_platform {

QtPictureBinding::QtPictureBinding(PictureBox& box, int place, QWidget& parent,
                                   const WindowContext& context)
    : BindingOf(box, place, context.events), widget_(new PictureWidget(&parent)), context_(context)
{
    new MouseEventFilter(*widget_, place, context_);
    widget_->press = [this] { context_.mouse.press(place_, left_button); };
}

void QtPictureBinding::apply()
{
    if (moved()) {
        widget_->set_size_on_form({control_.Width, control_.Height});
        set_place(*widget_, control_, context_.scale);
    }
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
    if (changed(&PictureBox::Visible))
        widget_->setVisible(control_.Visible);
}

} // namespace ostrelum::qt_platform
