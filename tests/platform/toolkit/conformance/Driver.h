#pragma once

#include "platform/toolkit/Focus.h"
#include "platform/toolkit/Toolkit.h"

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace ostrelum::conformance {

/// What a control shows on the screen; a field that its kind does not have keeps its default.
struct Look {
    std::string text;
    /// In the box or the window that holds the control.
    Area area;
    bool visible = false;
    bool enabled = true;
    Colour colour = 0;
    FontSpec font;
    Align alignment = Align::Left;
    bool wraps = false;
    std::string tooltip;
    MouseCursor cursor = MouseCursor::Default;
    int min = 0;
    int max = 0;
    int value = 0;
    std::vector<std::string> list;
    bool operator==(const Look&) const = default;
};

/// What a screen reader is told of a control; no name for what it passes over.
struct Spoken {
    std::string name;
    bool chosen = false;
    bool operator==(const Spoken&) const = default;
    friend std::ostream& operator<<(std::ostream& out, const Spoken& spoken)
    {
        return out << spoken.name << (spoken.chosen ? " (chosen)" : "");
    }
};

/// An entry of a menu on the screen.
struct MenuEntry {
    std::string caption;
    bool enabled = true;
    bool bold = false;
    std::string shortcut;
    bool operator==(const MenuEntry&) const = default;
};

/// The user of a toolkit: hands, eyes and a clock. Points are those of the form's client area.
class Driver {
public:
    Driver() = default;
    Driver(const Driver&) = delete;
    Driver& operator=(const Driver&) = delete;
    virtual ~Driver() = default;

    virtual Toolkit& toolkit() = 0;

    /// `shift` as in Event.
    virtual void button_down(Form& form, Point at, int button, int shift) = 0;
    virtual void button_up(Form& form, Point at, int button, int shift) = 0;
    virtual void move_mouse(Form& form, Point at) = 0;
    virtual void press_key(Form& form, Key key, int shift) = 0;
    /// Drags a slider over values and lets it go.
    virtual void drag(Form& form, const ScrollBar& bar, const std::vector<int>& values) = 0;
    /// Closes the window by its frame.
    virtual void close(Form& form) = 0;
    /// Chooses an entry of the menu that is up; nullptr leaves it without.
    virtual void choose(Form& form, const MenuItem* entry) = 0;

    virtual bool is_on_screen(const Form& form) const = 0;
    virtual std::string title(const Form& form) const = 0;
    virtual Point size(const Form& form) const = 0;
    /// 0 to 255.
    virtual int opacity(const Form& form) const = 0;
    virtual Look look(const Form& form, int control) const = 0;
    virtual Spoken spoken(const Form& form, int control) const = 0;
    /// The control that has the focus, and the one that is seen to have it.
    virtual int focused(const Form& form) const = 0;
    virtual int marked(const Form& form) const = 0;
    /// The entries of the menu that is up.
    virtual std::vector<MenuEntry> menu() const = 0;
    /// The top left corner of the menu that is up; nothing for the place of the mouse.
    virtual std::optional<Point> menu_place(const Form& form) const = 0;
    virtual MouseCursor screen_cursor() const = 0;

    /// Milliseconds on a clock that never goes back.
    virtual int now() const = 0;
    virtual void let_time_pass(int milliseconds) = 0;
    /// Time passes while the program lets no events in.
    virtual void stay_busy(int milliseconds) = 0;
    /// Lets time pass until something holds, some seconds at most; whether it did.
    virtual bool wait_for(const std::function<bool()>& condition) = 0;
    /// Shows a form modally, until it is hidden.
    virtual void show_modal(Form& form) = 0;
};

/// A back end under test.
struct BackEnd {
    const char* name;
    std::unique_ptr<Driver> (*make_driver)();
    friend std::ostream& operator<<(std::ostream& out, const BackEnd& back_end)
    {
        return out << back_end.name;
    }
};

} // namespace ostrelum::conformance
