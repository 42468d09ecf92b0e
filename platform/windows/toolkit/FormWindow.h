#pragma once

#include "platform/toolkit/FormFrame.h"
#include "platform/toolkit/KeyboardInput.h"
#include "platform/windows/toolkit/Announcement.h"
#include "platform/windows/toolkit/ControlWindow.h"
#include "platform/windows/toolkit/Cursors.h"
#include "platform/windows/toolkit/FocusFrame.h"
#include "platform/windows/toolkit/PopupMenus.h"
#include "platform/windows/toolkit/Tooltips.h"

#include <functional>
#include <vector>

namespace ostrelum::windows_platform {

/// What the windows of all forms share.
struct SharedLook {
    const Toolkit& toolkit;
    Cursors& cursors;
    Fonts& fonts;
    EventDispatcher& dispatcher;
    /// The scale in which the program shows.
    Scale& scale;
    /// Size of the largest form.
    SIZE largest;
};

/// The window of a form, with a window for each of its controls.
class FormWindow final : public FormHost, private FocusView {
public:
    /// `owner` is the window that this one always lies over, or nullptr. `asked_to_close` runs when
    /// the user closes the window by its frame.
    FormWindow(const Form& form, SharedLook look, DWORD extended_style, HWND owner,
               std::function<void()> asked_to_close);
    ~FormWindow() override;

    HWND handle() const { return window_.get(); }
    WindowEvents& events() { return events_; }
    /// Shows what differs.
    void sync();
    /// Brings the window up in the centre of the screen, together with its frame.
    void bring_up();
    /// The program wishes a control to have the focus.
    void wish_focus(int control) { keyboard_.wish_focus(control); }
    /// Lets a screen reader say a text.
    void announce(const std::string& text) { announcement_.say(text); }
    /// A menu comes up once no other event runs.
    void pop_up(const MenuRequest& request);
    /// Closes the window for good: it raises no event any more.
    void close_down();
    /// Runs when the window is about to go.
    std::function<void()> going;

    const Form& form() const override { return form_; }
    const Toolkit& toolkit() const override { return look_.toolkit; }
    Scale scale() const override { return scale_; }
    HFONT font(const FontSpec& spec) override { return look_.fonts.get(spec, scale_); }
    HWND window(int control) const override;
    void draw_under(HDC dc, int control) override;
    void draw_anew(int control) override;
    void set_tooltip(int control, const std::string& text) override;
    std::optional<LRESULT> answer(int control, const Message& message) override;

    int focused() const override { return focus_; }
    /// The control in the frame of the focus.
    int marked() const;
    const Tooltips& tooltips() const { return tooltips_; }
    /// The cursor over a control, if the screen has none over all.
    MouseCursor cursor_over(int control) const;

private:
    static LRESULT CALLBACK receive(HWND window, UINT number, WPARAM first, LPARAM second);
    static const wchar_t* window_class();
    LRESULT handle_message(const Message& message);
    void set_focus(int control) override;
    void mark(int control) override;

    void sync_frame();
    void place_client(const FormFrame& frame);
    void set_icons(const FormFrame& frame);
    void screen_changed(Scale scale, const RECT& proposed);
    void tick(int control);
    void paint();
    void draw_control(HDC dc, int control, POINT at);
    void show_menu();

    ControlWindow* control_window(int control) const;
    bool is_input(int control) const;
    Point point_on_form(int control, LPARAM second) const;
    std::optional<LRESULT> answer_mouse(int control, const Message& message);
    std::optional<LRESULT> press(int control, int button, const Message& message);
    std::optional<LRESULT> let_go(int control, int button, const Message& message);
    std::optional<LRESULT> answer_key(int control, const Message& message);
    std::optional<LRESULT> answer_child(const Message& message);
    std::optional<LRESULT> answer_reader_of_form(const Message& message);
    std::optional<LRESULT> answer_reader(int control, const Message& message);
    void tell_readers();
    std::optional<LRESULT> colours_under(HWND child, HDC dc) const;
    void focus_came(int control);

    const Form& form_;
    const SharedLook look_;
    WindowEvents events_;
    MouseInput mouse_;
    KeyboardInput keyboard_;
    std::function<void()> asked_to_close_;
    DWORD style_;
    Scale scale_;
    OwnedWindow window_;
    Tooltips tooltips_;
    std::vector<ControlParts> controls_;
    FocusFrame focus_frame_;
    Announcement announcement_;
    OwnedIcon icons_[2];
    std::optional<FormFrame> shown_;
    /// What a screen reader was last told of each control.
    std::vector<std::string> readings_;
    std::optional<MenuRequest> menu_;
    int focus_ = form_itself;
    bool releasing_ = false;
    bool closed_ = false;
};

} // namespace ostrelum::windows_platform
