#pragma once

#include "platform/windows/toolkit/WindowsToolkit.h"
#include "tests/platform/toolkit/conformance/Driver.h"
#include "tests/platform/windows/toolkit/EventFiber.h"
#include "tests/platform/windows/toolkit/ScreenLook.h"

namespace ostrelum::windows_platform {

/// A user of the windows: what he presses goes to the window that the system would give it to.
class WindowsDriver : public conformance::Driver {
public:
    ~WindowsDriver() override { SetKeyboardState(no_keys); }
    Toolkit& toolkit() override { return toolkit_; }

    void button_down(Form& form, Point at, int button, int shift) override;
    void button_up(Form& form, Point at, int button, int shift) override;
    void move_mouse(Form& form, Point at) override;
    void press_key(Form& form, Key key, int shift) override;
    void drag(Form& form, const ScrollBar& bar, const std::vector<int>& values) override;
    void close(Form& form) override;
    void choose(Form& form, const MenuItem* entry) override;

    bool is_on_screen(const Form& form) const override;
    std::string title(const Form& form) const override;
    Point size(const Form& form) const override;
    int opacity(const Form& form) const override;
    conformance::Look look(const Form& form, int control) const override;
    conformance::Spoken spoken(const Form& form, int control) const override
    {
        return spoken_of(window(form).window(control));
    }
    int focused(const Form& form) const override { return window(form).focused(); }
    int marked(const Form& form) const override { return window(form).marked(); }
    std::vector<conformance::MenuEntry> menu() const override;
    std::optional<Point> menu_place(const Form& form) const override;
    MouseCursor screen_cursor() const override;

    int now() const override { return static_cast<int>(GetTickCount64() - start_); }
    void let_time_pass(int milliseconds) override;
    void stay_busy(int milliseconds) override { Sleep(static_cast<DWORD>(milliseconds)); }
    bool wait_for(const std::function<bool()>& condition) override;
    void show_modal(Form& form) override { toolkit_.ShowModal(form); }

    FormWindow& window(const Form& form) const { return *toolkit_.window_of(form); }

private:
    void mouse(Form& form, Point at, UINT message, int buttons);

    static inline BYTE no_keys[256]{};

    WindowsToolkit toolkit_{{}};
    EventFiber events_{toolkit_};
    const ULONGLONG start_ = GetTickCount64();
    /// Buttons that are down.
    int held_ = 0;
};

} // namespace ostrelum::windows_platform
