#include "platform/qt/InputBindings.h"

#include "platform/qt/Colours.h"
#include "platform/qt/Fonts.h"
#include "platform/qt/Text.h"

#include <QEvent>

namespace ostrelum::qt_platform {
namespace {

/// The wheel changes a control that has the focus alone: the mouse may only rest over it while the
/// user turns the wheel for something else.
class WheelNeedsFocus : public QObject {
public:
    explicit WheelNeedsFocus(QWidget& widget) : QObject(&widget), widget_(widget)
    {
        // The wheel gives no focus either.
        widget.setFocusPolicy(Qt::StrongFocus);
        widget.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        const bool refused = event->type() == QEvent::Wheel && !widget_.hasFocus();
        if (refused)
            event->ignore();
        return refused;
    }

private:
    QWidget& widget_;
};

} // namespace

QtButtonBinding::QtButtonBinding(CommandButton& button, int place, QWidget& parent,
                                 const WindowContext& context)
    : CommandButtonBinding(button, place, context.events), scale_(context.scale),
      widget_(new QPushButton(&parent))
{
    widget_->setAutoDefault(false);
    QObject::connect(widget_, &QPushButton::clicked, widget_, [this] { user_clicks(); });
}

void QtButtonBinding::apply()
{
    if (moved())
        set_place(*widget_, control_, scale_);
    if (changed(&CommandButton::Caption))
        widget_->setText(qt_text(control_.Caption));
    if (changed(&CommandButton::Font))
        widget_->setFont(font_of(control_.Font, scale_));
    if (changed(&CommandButton::Default))
        widget_->setDefault(control_.Default);
    if (changed(&CommandButton::Enabled))
        widget_->setEnabled(control_.Enabled);
    if (changed(&CommandButton::Visible))
        widget_->setVisible(control_.Visible);
}

QtScrollBarBinding::QtScrollBarBinding(ScrollBar& bar, int place, QWidget& parent,
                                       const WindowContext& context)
    : ScrollBarBinding(bar, place, context.events), scale_(context.scale),
      widget_(new SliderWidget(&parent))
{
    new WheelNeedsFocus(*widget_);
    widget_->setContextMenuPolicy(Qt::NoContextMenu);
    QObject::connect(widget_, &QScrollBar::valueChanged, widget_,
                     [this](int value) { user_moves(value); });
    QObject::connect(widget_, &QScrollBar::sliderPressed, widget_, [this] { user_grabs(); });
    QObject::connect(widget_, &QScrollBar::sliderReleased, widget_, [this] { user_lets_go(); });
}

void QtScrollBarBinding::apply()
{
    if (moved())
        set_place(*widget_, control_, scale_);
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
    if (changed(&ScrollBar::Visible))
        widget_->setVisible(control_.Visible);
}

QtCheckBoxBinding::QtCheckBoxBinding(CheckBox& box, int place, QWidget& parent,
                                     const WindowContext& context)
    : CheckBoxBinding(box, place, context.events), scale_(context.scale),
      widget_(new QCheckBox(&parent))
{
    widget_->setPalette(box_palette(widget_->palette()));
    // Not the click: a screen reader ticks the box without one.
    QObject::connect(widget_, &QCheckBox::toggled, widget_,
                     [this](bool ticked) { user_ticks(ticked); });
}

void QtCheckBoxBinding::apply()
{
    if (moved())
        set_place(*widget_, control_, scale_);
    if (changed(&CheckBox::Caption))
        widget_->setText(qt_text(control_.Caption));
    if (changed(&CheckBox::Font))
        widget_->setFont(font_of(control_.Font, scale_));
    if (changed(&CheckBox::Value))
        widget_->setChecked(control_.Value != 0);
    if (changed(&CheckBox::Enabled))
        widget_->setEnabled(control_.Enabled);
    if (changed(&CheckBox::Visible))
        widget_->setVisible(control_.Visible);
}

QtComboBoxBinding::QtComboBoxBinding(ComboBox& box, int place, QWidget& parent,
                                     const WindowContext& context)
    : ComboBoxBinding(box, place, context.events), scale_(context.scale),
      widget_(new QComboBox(&parent))
{
    new WheelNeedsFocus(*widget_);
    // Comes only from the user, and also when the entry was chosen before.
    QObject::connect(widget_, &QComboBox::activated, widget_,
                     [this](int index) { user_chooses(index); });
}

void QtComboBoxBinding::apply()
{
    if (moved())
        set_place(*widget_, control_, scale_);
    if (changed(&ComboBox::Font))
        widget_->setFont(font_of(control_.Font, scale_));
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
    if (changed(&ComboBox::Visible))
        widget_->setVisible(control_.Visible);
}

} // namespace ostrelum::qt_platform
