#pragma once

#include "platform/qt/ControlBinding.h"
#include "platform/qt/SliderWidget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>

/// The controls of which the user changes the value.
namespace ostrelum::qt_platform {

class ButtonBinding : public BindingOf<CommandButton> {
public:
    ButtonBinding(CommandButton& button, const ControlEntry& entry, QWidget& parent,
                  const WindowContext& context);
    QWidget* widget() const override { return widget_; }

private:
    void apply() override;

    QPushButton* widget_;
};

class ScrollBarBinding : public BindingOf<ScrollBar> {
public:
    ScrollBarBinding(ScrollBar& bar, const ControlEntry& entry, QWidget& parent,
                     const WindowContext& context);
    QWidget* widget() const override { return widget_; }

private:
    void apply() override;
    void user_moved(int value);
    void user_let_go();

    SliderWidget* widget_;
    int value_when_grabbed_ = 0;
};

class CheckBoxBinding : public BindingOf<CheckBox> {
public:
    CheckBoxBinding(CheckBox& box, const ControlEntry& entry, QWidget& parent,
                    const WindowContext& context);
    QWidget* widget() const override { return widget_; }

private:
    void apply() override;

    QCheckBox* widget_;
};

class ComboBoxBinding : public BindingOf<ComboBox> {
public:
    ComboBoxBinding(ComboBox& box, const ControlEntry& entry, QWidget& parent,
                    const WindowContext& context);
    QWidget* widget() const override { return widget_; }

private:
    void apply() override;

    QComboBox* widget_;
};

} // namespace ostrelum::qt_platform
