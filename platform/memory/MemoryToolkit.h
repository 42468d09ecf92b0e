#pragma once

#include "platform/toolkit/Toolkit.h"

#include <map>
#include <string>
#include <vector>

namespace ostrelum::memory_platform {

/// A window toolkit without a window: it shows nothing, measures text with fixed widths and lets
/// the caller move the clock. Tests and the console stand on it.
class MemoryToolkit : public Toolkit {
public:
    /// Width of every character and height of every line, in pixels.
    static constexpr int CharacterWidth = 6;
    static constexpr int LineHeight = 16;
    /// What the fastest timer takes from tick to tick: a screen frame, in milliseconds.
    static constexpr int FrameTime = 15;

    void InitCommonControls() override { common_controls = true; }
    TextSize text_size(const std::string& text, const FontSpec& font) const override;
    void Show(Form& form) override;
    void ShowModal(Form& form) override;
    void Hide(Form& form) override;
    void Refresh(Form& form) override;
    void DoEvents() override;
    void popup(Form& form, PopupMenu& menu, std::optional<Point> at, const MenuItem* bold) override;
    void set_screen_cursor(MouseCursor cursor) override { cursors.push_back(cursor); }
    std::int32_t GetWindowLongA(const Form& form, int index) override;
    void SetWindowLongA(Form& form, int index, std::int32_t value) override;
    void SetLayeredWindowAttributes(Form& form, Colour key, std::uint8_t alpha,
                                    std::uint32_t flags) override;
    int run() override { return 0; }

    /// Lets time pass on a form: each timer that is on ticks when its interval is over, in the
    /// order of the form's controls.
    void advance(Form& form, int milliseconds);
    /// Raises an event of a control as a user's action would.
    static void user(Form& form, std::string_view control, const Event& event);

    /// What waits for DoEvents.
    std::function<void()> pending;
    /// What ShowModal does instead of waiting for the user; the form is hidden when it returns.
    std::function<void(Form&)> modal;

    struct Popup {
        const PopupMenu* menu;
        std::optional<Point> at;
        const MenuItem* bold;
    };

    bool common_controls = false;
    /// Forms on show, the last on top.
    std::vector<Form*> shown;
    /// How often each form was painted at once.
    std::map<const Form*, int> refreshes;
    std::vector<Popup> popups;
    /// The cursors of the whole screen, one after the other.
    std::vector<MouseCursor> cursors;
    /// The alpha values that a form was given, one after the other.
    std::map<const Form*, std::vector<int>> alphas;

private:
    std::map<std::pair<const Form*, int>, std::int32_t> window_longs_;
    /// Milliseconds that each timer has been running since its last tick.
    std::map<const Timer*, int> waited_;
};

} // namespace ostrelum::memory_platform
