#pragma once

#include "platform/memory/MemoryWindow.h"
#include "platform/toolkit/WindowStyles.h"

#include <map>
#include <string>
#include <vector>

namespace ostrelum::memory_platform {

/// A window toolkit without a screen: it measures text with fixed widths and lets the caller move
/// the clock, the mouse and the keys. Tests and the console stand on it.
class MemoryToolkit : public Toolkit {
public:
    /// Width of every character and height of every line, in pixels.
    static constexpr int character_width = 6;
    static constexpr int line_height = 16;

    void InitCommonControls() override { common_controls = true; }
    TextSize text_size(const std::string& text, const FontSpec& font) const override;
    void Show(Form& form) override;
    void ShowModal(Form& form) override;
    void Hide(Form& form) override;
    void Refresh(Form& form) override;
    void DoEvents() override;
    void popup(Form& form, PopupMenu& menu, std::optional<Point> at, const MenuItem* bold) override;
    void SetFocus(Form& form, const void* control) override;
    void announce(Form&, const std::string& text) override { announced.push_back(text); }
    void set_screen_cursor(MouseCursor cursor) override { cursors.push_back(cursor); }
    std::int32_t GetWindowLongA(const Form& form, int index) override;
    void SetWindowLongA(Form& form, int index, std::int32_t value) override;
    void SetLayeredWindowAttributes(Form& form, Colour key, std::uint8_t alpha,
                                    std::uint32_t flags) override;
    int run() override { return 0; }
    void prepare_end() override { ended = true; }

    /// Lets time pass on a form: each timer that is on ticks when its interval is over, in the
    /// order of the form's controls.
    void advance(Form& form, int milliseconds);
    /// Lets time pass on all forms on show.
    void advance(int milliseconds);
    /// Lets time pass while the program is busy: what is due ticks once, when the program next
    /// lets events in.
    void stay_busy(int milliseconds) { owed_ += milliseconds; }

    /// The window of a form on show. It stays as long as somebody holds it, as events of its own
    /// may take it away.
    std::shared_ptr<MemoryWindow> window_of(const Form& form) const;
    /// The user closes the window by its frame.
    void close(Form& form);
    /// The user chooses an entry of the menu that is up, or none.
    void choose(const MenuItem* entry);
    /// 0 to 255.
    int opacity(const Form& form) const { return styles_.alpha(form); }
    /// Raises an event of a control as a user's action would.
    static void user(Form& form, std::string_view control, const Event& event);

    /// What waits for DoEvents.
    std::function<void()> pending;
    /// What ShowModal does instead of waiting for the user; the form is hidden when it returns.
    std::function<void(Form&)> modal;

    struct Popup {
        const PopupMenu* menu;
        /// Nothing for a menu at the mouse.
        std::optional<Point> at;
        const MenuItem* bold;
        const Form* form;
    };

    bool common_controls = false;
    bool ended = false;
    /// Forms on show, the last on top.
    std::vector<Form*> shown;
    /// How often each form was painted at once.
    std::map<const Form*, int> refreshes;
    std::vector<Popup> popups;
    /// The menu that is up.
    std::optional<Popup> menu;
    /// The cursors of the whole screen, one after the other.
    std::vector<MouseCursor> cursors;
    /// What a screen reader was to say, one after the other.
    std::vector<std::string> announced;
    /// The alpha values that a form was given, one after the other.
    std::map<const Form*, std::vector<int>> alphas;

private:
    /// Lets `milliseconds` pass at once for the timers of a form.
    void tick(Form& form, int milliseconds);
    void sync_all();
    void share_input();

    EventDispatcher dispatcher_{[this] { sync_all(); }};
    std::map<const Form*, std::shared_ptr<MemoryWindow>> windows_;
    /// Forms that are shown over all others, the last on top.
    std::vector<const Form*> modals_;
    WindowStyles styles_;
    /// Milliseconds that each timer has been running since its last tick.
    std::map<const Timer*, int> waited_;
    int owed_ = 0;
};

} // namespace ostrelum::memory_platform
