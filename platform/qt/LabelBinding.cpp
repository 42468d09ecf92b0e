#include "platform/qt/LabelBinding.h"

#include "platform/qt/Colours.h"
#include "platform/qt/Fonts.h"
#include "platform/qt/MouseEventFilter.h"
#include "platform/qt/Text.h"
#include "platform/toolkit/Reading.h"

namespace ostrelum::qt_platform {
namespace {

Qt::Alignment alignment_of(Align align)
{
    switch (align) {
    case Align::Right: return Qt::AlignRight | Qt::AlignTop;
    case Align::Centre: return Qt::AlignHCenter | Qt::AlignTop;
    case Align::Left: break;
    }
    return Qt::AlignLeft | Qt::AlignTop;
}

} // namespace

QtLabelBinding::QtLabelBinding(Label& label, int place, QWidget& parent,
                               const WindowContext& context)
    : BindingOf(label, place, context.events), widget_(new LabelWidget(&parent)), context_(context)
{
    new MouseEventFilter(*widget_, place, context_);
    widget_->setTextFormat(Qt::PlainText);
    // Else Ctrl+A and Ctrl+C mark and copy the text of a label that the keyboard reaches.
    widget_->setTextInteractionFlags(Qt::NoTextInteraction);
    widget_->setIndent(0);
    widget_->press = [this] { context_.mouse.press(place_, left_button); };
    widget_->reading = [this] { return qt_text(reading_of(events_.form(), place_)); };
    widget_->label = &label;
}

void QtLabelBinding::apply()
{
    apply_text();
    place_text();
    if (changed(&Label::ForeColor))
        paint_text(*widget_, control_.ForeColor);
    if (changed(&Label::ToolTipText))
        widget_->setToolTip(qt_text(control_.ToolTipText));
    if (changed(&Label::MousePointer))
        context_.cursors.set(*widget_, control_.MousePointer);
    if (changed(&Label::TabStop))
        widget_->setFocusPolicy(control_.TabStop ? Qt::StrongFocus : Qt::NoFocus);
    if (changed(&Label::Visible))
        widget_->setVisible(control_.Visible);
}

/// A slanted letter may lean out of the text on the left, where the widget would cut it.
void QtLabelBinding::place_text()
{
    if (!changed(&Label::Left, &Label::Top, &Label::Width, &Label::Height, &Label::Caption,
                 &Label::Font))
        return;
    const FormScale& scale = context_.scale;
    const int lean = sizes_itself(control_)
                         ? left_lean(qt_text(control_.Caption), font_of(control_.Font, scale))
                         : 0;
    widget_->setContentsMargins(lean, 0, 0, 0);
    const QPoint start = scale.to_window(Point{control_.Left, control_.Top});
    widget_->setGeometry(start.x() - lean, start.y(), scale.room_in_window(control_.Width) + lean,
                         scale.room_in_window(control_.Height));
}

void QtLabelBinding::apply_text()
{
    if (sizes_itself(control_) &&
        changed(&Label::Caption, &Label::Font, &Label::AutoSize, &Label::WordWrap))
        fit(context_.toolkit, control_);
    if (changed(&Label::Font))
        widget_->setFont(font_of(control_.Font, context_.scale));
    if (changed(&Label::Alignment))
        widget_->setAlignment(alignment_of(control_.Alignment));
    if (changed(&Label::WordWrap))
        widget_->setWordWrap(control_.WordWrap);
    if (changed(&Label::Caption))
        widget_->setText(qt_text(control_.Caption));
}

} // namespace ostrelum::qt_platform
