#pragma once

#include "platform/toolkit/InputBindings.h"
#include "platform/windows/toolkit/ControlWindow.h"

/// The controls of which the user changes the value: windows of the system's own.
namespace ostrelum::windows_platform {

class ButtonWindow : public CommandButtonBinding, public ControlWindow {
public:
    ButtonWindow(CommandButton& button, int control, FormHost& host, WindowEvents& events);
    bool wants(Key key) const override { return key == Key::Space; }
    void told(int code) override;

private:
    void apply() override;
};

class SliderWindow : public ScrollBarBinding, public ControlWindow {
public:
    SliderWindow(ScrollBar& bar, int control, FormHost& host, WindowEvents& events);
    bool wants(Key key) const override { return moves_value(key); }
    /// A request of the scroll bar, such as SB_LINELEFT.
    void told(int code) override;

protected:
    LRESULT handle_message(const Message& message) override;

private:
    void apply() override;
    void drag();
    void move_to(int wanted);

    bool dragged_ = false;
};

class TickWindow : public CheckBoxBinding, public ControlWindow {
public:
    TickWindow(CheckBox& box, int control, FormHost& host, WindowEvents& events);
    bool wants(Key key) const override { return key == Key::Space; }
    void told(int code) override;

private:
    void apply() override;
};

class ListWindow : public ComboBoxBinding, public ControlWindow {
public:
    ListWindow(ComboBox& box, int control, FormHost& host, WindowEvents& events);
    bool wants(Key key) const override;
    void told(int code) override;

protected:
    LRESULT handle_message(const Message& message) override;

private:
    void apply() override;
    void place_list();

    bool choice_is_told_ = false;
};

} // namespace ostrelum::windows_platform
