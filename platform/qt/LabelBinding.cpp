#include "platform/qt/LabelBinding.h"

#include "platform/qt/Colours.h"
#include "platform/qt/Fonts.h"
#include "platform/qt/Text.h"

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

LabelBinding::LabelBinding(Label& label, const ControlEntry& entry, QWidget& parent,
                           const WindowContext& context)
    : BindingOf(label, entry, context), widget_(new LabelWidget(&parent)),
      mouse_(new MouseEventFilter(*widget_, &entry, context))
{
    widget_->setTextFormat(Qt::PlainText);
    widget_->setIndent(0);
    widget_->press = [this] { press(LeftButton); };
}

bool LabelBinding::press(int button)
{
    mouse_->press(button);
    return true;
}

void LabelBinding::apply()
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
    appear(*widget_);
}

/// A slanted letter may lean out of the text on the left, where the widget would cut it.
void LabelBinding::place_text()
{
    if (!changed(&Label::Left, &Label::Top, &Label::Width, &Label::Height, &Label::Caption,
                 &Label::Font))
        return;
    const int lean =
        sizes_itself() ? left_lean(qt_text(control_.Caption), font_of(control_.Font)) : 0;
    widget_->setContentsMargins(lean, 0, 0, 0);
    widget_->setGeometry(control_.Left - lean, control_.Top, control_.Width + lean,
                         control_.Height);
}

void LabelBinding::apply_text()
{
    if (sizes_itself() &&
        changed(&Label::Caption, &Label::Font, &Label::AutoSize, &Label::WordWrap))
        fit(context_.toolkit, control_);
    if (changed(&Label::Font))
        widget_->setFont(font_of(control_.Font));
    if (changed(&Label::Alignment))
        widget_->setAlignment(alignment_of(control_.Alignment));
    if (changed(&Label::WordWrap))
        widget_->setWordWrap(control_.WordWrap);
    if (changed(&Label::Caption))
        widget_->setText(qt_text(control_.Caption));
}

} // namespace ostrelum::qt_platform
