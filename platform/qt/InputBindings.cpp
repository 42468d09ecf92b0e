#include "platform/qt/InputBindings.h"

#include "platform/qt/Colours.h"
#include "platform/qt/Fonts.h"
#include "platform/qt/Text.h"

namespace ostrelum::qt_platform {

ButtonBinding::ButtonBinding(CommandButton& button, const ControlEntry& entry, QWidget& parent,
                             const WindowContext& context)
    : BindingOf(button, entry, context), widget_(new QPushButton(&parent))
{
    widget_->setAutoDefault(false);
    QObject::connect(widget_, &QPushButton::clicked, widget_, [this] { raise(EventKind::Click); });
}

void ButtonBinding::apply()
{
    place(*widget_);
    if (changed(&CommandButton::Caption))
        widget_->setText(qt_text(control_.Caption));
    if (changed(&CommandButton::Font))
        widget_->setFont(font_of(control_.Font));
    if (changed(&CommandButton::Default))
        widget_->setDefault(control_.Default);
    if (changed(&CommandButton::Enabled))
        widget_->setEnabled(control_.Enabled);
    appear(*widget_);
}

ScrollBarBinding::ScrollBarBinding(ScrollBar& bar, const ControlEntry& entry, QWidget& parent,
                                   const WindowContext& context)
    : BindingOf(bar, entry, context), widget_(new SliderWidget(&parent))
{
    widget_->setFocusPolicy(Qt::StrongFocus);
    widget_->setContextMenuPolicy(Qt::NoContextMenu);
    QObject::connect(widget_, &QScrollBar::valueChanged, widget_,
                     [this](int value) { user_moved(value); });
    QObject::connect(widget_, &QScrollBar::sliderPressed, widget_,
                     [this] { value_when_grabbed_ = control_.Value; });
    QObject::connect(widget_, &QScrollBar::sliderReleased, widget_, [this] { user_let_go(); });
}

void ScrollBarBinding::user_moved(int value)
{
    if (context_.dispatcher.syncing())
        return;
    take(&ScrollBar::Value, value);
    raise(widget_->isSliderDown() ? EventKind::Scroll : EventKind::Change);
}

void ScrollBarBinding::user_let_go()
{
    if (control_.Value != value_when_grabbed_)
        raise(EventKind::Change);
}

void ScrollBarBinding::apply()
{
    place(*widget_);
    if (changed(&ScrollBar::Min, &ScrollBar::Max))
        widget_->setRange(control_.Min, control_.Max);
    if (changed(&ScrollBar::SmallChange))
        widget_->setSingleStep(control_.SmallChange);
    if (changed(&ScrollBar::LargeChange))
        widget_->setPageStep(control_.LargeChange);
    if (changed(&ScrollBar::Value, &ScrollBar::Min, &ScrollBar::Max))
        widget_->setValue(control_.Value);
    if (changed(&ScrollBar::AccessibleName))
        widget_->setAccessibleName(qt_text(control_.AccessibleName));
    if (changed(&ScrollBar::Enabled))
        widget_->setEnabled(control_.Enabled);
    appear(*widget_);
}

CheckBoxBinding::CheckBoxBinding(CheckBox& box, const ControlEntry& entry, QWidget& parent,
                                 const WindowContext& context)
    : BindingOf(box, entry, context), widget_(new QCheckBox(&parent))
{
    widget_->setPalette(box_palette(widget_->palette()));
    // Not the click: a screen reader ticks the box without one.
    QObject::connect(widget_, &QCheckBox::toggled, widget_, [this](bool ticked) {
        if (context_.dispatcher.syncing())
            return;
        take(&CheckBox::Value, ticked ? 1 : 0);
        raise(EventKind::Click);
    });
}

void CheckBoxBinding::apply()
{
    place(*widget_);
    if (changed(&CheckBox::Caption))
        widget_->setText(qt_text(control_.Caption));
    if (changed(&CheckBox::Font))
        widget_->setFont(font_of(control_.Font));
    if (changed(&CheckBox::Value))
        widget_->setChecked(control_.Value != 0);
    if (changed(&CheckBox::Enabled))
        widget_->setEnabled(control_.Enabled);
    appear(*widget_);
}

ComboBoxBinding::ComboBoxBinding(ComboBox& box, const ControlEntry& entry, QWidget& parent,
                                 const WindowContext& context)
    : BindingOf(box, entry, context), widget_(new QComboBox(&parent))
{
    // Comes only from the user, and also when the entry was chosen before.
    QObject::connect(widget_, &QComboBox::activated, widget_, [this](int index) {
        take(&ComboBox::ListIndex, index);
        raise(EventKind::Click);
    });
}

void ComboBoxBinding::apply()
{
    place(*widget_);
    if (changed(&ComboBox::Font))
        widget_->setFont(font_of(control_.Font));
    if (changed(&ComboBox::List)) {
        widget_->clear();
        for (const std::string& text : control_.List)
            widget_->addItem(qt_text(text));
    }
    if (changed(&ComboBox::List, &ComboBox::ListIndex))
        widget_->setCurrentIndex(control_.ListIndex);
    if (changed(&ComboBox::AccessibleName)) {
        widget_->setAccessibleName(qt_text(control_.AccessibleName));
        // Linux's screen readers are told the chosen entry as the name.
        widget_->setAccessibleDescription(qt_text(control_.AccessibleName));
    }
    if (changed(&ComboBox::Enabled))
        widget_->setEnabled(control_.Enabled);
    appear(*widget_);
}

} // namespace ostrelum::qt_platform
