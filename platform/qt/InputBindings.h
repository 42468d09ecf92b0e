#pragma once

#include "platform/qt/ControlWidget.h"
#include "platform/qt/SliderWidget.h"
#include "platform/toolkit/InputBindings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>

/// The controls of which the user changes the value.
namespace ostrelum::qt_platform {

class QtButtonBinding : public CommandButtonBinding {
public:
    QtButtonBinding(CommandButton& button, int place, QWidget& parent,
                    const WindowContext& context);
    QWidget* widget() const { return widget_; }

private:
    void apply() override;

    const FormScale scale_;
    QPushButton* widget_;
};

class QtScrollBarBinding : public ScrollBarBinding {
public:
    QtScrollBarBinding(ScrollBar& bar, int place, QWidget& parent, const WindowContext& context);
    QWidget* widget() const { return widget_; }

private:
    void apply() override;

    const FormScale scale_;
    SliderWidget* widget_;
};

class QtCheckBoxBinding : public CheckBoxBinding {
public:
    QtCheckBoxBinding(CheckBox& box, int place, QWidget& parent, const WindowContext& context);
    QWidget* widget() const { return widget_; }

private:
    void apply() override;

    const FormScale scale_;
    QCheckBox* widget_;
};

class QtComboBoxBinding : public ComboBoxBinding {
public:
    QtComboBoxBinding(ComboBox& box, int place, QWidget& parent, const WindowContext& context);
    QWidget* widget() const { return widget_; }

private:
    void apply() override;

    const FormScale scale_;
    QComboBox* widget_;
};

} // namespace ostrelum::qt_platform
