#pragma once

#include "platform/toolkit/ControlBinding.h"
#include "platform/toolkit/Focus.h"
#include "platform/toolkit/Toolkit.h"
#include "platform/windows/toolkit/Fonts.h"

#include <memory>
#include <optional>
#include <string>

namespace ostrelum::windows_platform {

/// A message as the system sends it to a window.
struct Message {
    UINT number = 0;
    WPARAM first = 0;
    LPARAM second = 0;
};

/// The window of a form as the windows of its controls see it.
class FormHost {
public:
    FormHost() = default;
    FormHost(const FormHost&) = delete;
    FormHost& operator=(const FormHost&) = delete;
    virtual ~FormHost() = default;

    virtual const Form& form() const = 0;
    virtual const Toolkit& toolkit() const = 0;
    virtual Scale scale() const = 0;
    /// A font in this window's scale.
    virtual HFONT font(const FontSpec& spec) = 0;
    /// The window of a control that has one, or of the form itself.
    virtual HWND window(int control) const = 0;
    /// Draws what lies under a control; the drawing's coordinates are the control's own.
    virtual void draw_under(HDC dc, int control) = 0;
    /// What of a control's window lies there is drawn anew, also where other windows lie over it.
    virtual void draw_anew(int control) = 0;
    virtual void set_tooltip(int control, const std::string& text) = 0;
    /// Sees the messages of a control's window before that gets them; its answer, if it has one.
    virtual std::optional<LRESULT> answer(int control, const Message& message) = 0;
};

/// The window of a control: one of the system's own, of which some messages are answered here.
class ControlWindow {
public:
    /// `control` is the place in Form::controls. The window comes up hidden, over those that lie in
    /// the same box or form already.
    ControlWindow(int control, FormHost& host, const wchar_t* kind, DWORD style);
    ControlWindow(const ControlWindow&) = delete;
    ControlWindow& operator=(const ControlWindow&) = delete;
    virtual ~ControlWindow();

    HWND handle() const { return window_.get(); }
    /// Draws what the control itself shows; the drawing's coordinates are its own.
    virtual void draw(HDC) const {}
    /// Whether nothing shows through.
    virtual bool is_opaque() const { return true; }
    /// Whether the mouse goes to what lies under it.
    virtual bool lets_mouse_through() const { return false; }
    /// Whether the control's own window does something with a key.
    virtual bool wants(Key) const { return false; }
    /// The window tells of something that the user did there; `code` is one of its kind's own.
    virtual void told(int) {}
    /// Whether presses of the left mouse button are for the window itself.
    virtual bool is_input() const { return true; }

protected:
    /// The answer to a message that the form's window left.
    virtual LRESULT handle_message(const Message& message) { return by_default(message); }
    /// What the system's window does with a message.
    LRESULT by_default(const Message& message) const;

    void set_place(const Area& area);
    void set_text(const std::string& text);
    void set_font(const FontSpec& spec);
    void set_visible(bool visible);
    void set_enabled(bool enabled);

    const int control_number_;
    FormHost& host_;

private:
    static LRESULT CALLBACK receive(HWND window, UINT number, WPARAM first, LPARAM second, UINT_PTR,
                                    DWORD_PTR self);

    OwnedWindow window_;
};

/// What a control covers of what holds it.
inline Area place_in_holder(const auto& control)
{
    return {control.Left, control.Top, control.Width, control.Height};
}

/// Whether a key moves the value of a slider or a list.
bool moves_value(Key key);

/// A control of a form's window.
struct ControlParts {
    /// Nothing for a menu and its entries.
    std::unique_ptr<ControlBinding> binding;
    /// The same object, for what has a window; else nullptr.
    ControlWindow* window = nullptr;
};

/// The window of the control at a place of the form, with what keeps it the same as its data.
ControlParts make_control(int control, FormHost& host, WindowEvents& events);

} // namespace ostrelum::windows_platform
