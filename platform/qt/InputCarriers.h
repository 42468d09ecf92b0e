#pragma once

#include "platform/qt/Carrier.h"
#include "platform/qt/SliderWidget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>

/// The controls of which the user changes the value.
namespace ostrelum {

class ButtonCarrier : public CarrierOf<CommandButton> {
public:
    ButtonCarrier(CommandButton& button, const ControlEntry& entry, QWidget& parent,
                  const Surroundings& around);
    QWidget* widget() const override { return widget_; }

private:
    void apply() override;

    QPushButton* widget_;
};

class ScrollBarCarrier : public CarrierOf<ScrollBar> {
public:
    ScrollBarCarrier(ScrollBar& bar, const ControlEntry& entry, QWidget& parent,
                     const Surroundings& around);
    QWidget* widget() const override { return widget_; }

private:
    void apply() override;
    void user_moved(int value);
    void user_let_go();

    SliderWidget* widget_;
    int value_when_grabbed_ = 0;
};

class CheckBoxCarrier : public CarrierOf<CheckBox> {
public:
    CheckBoxCarrier(CheckBox& box, const ControlEntry& entry, QWidget& parent,
                    const Surroundings& around);
    QWidget* widget() const override { return widget_; }

private:
    void apply() override;

    QCheckBox* widget_;
};

class ComboBoxCarrier : public CarrierOf<ComboBox> {
public:
    ComboBoxCarrier(ComboBox& box, const ControlEntry& entry, QWidget& parent,
                    const Surroundings& around);
    QWidget* widget() const override { return widget_; }

private:
    void apply() override;

    QComboBox* widget_;
};

} // namespace ostrelum
