#pragma once

#include "platform/toolkit/WindowStyles.h"
#include "platform/windows/toolkit/FormWindow.h"
#include "platform/windows/toolkit/WindowsBackEnd.h"

#include <map>

namespace ostrelum::windows_platform {

class WindowsToolkit final : public Toolkit {
public:
    explicit WindowsToolkit(const WindowsLook& look);

    void InitCommonControls() override;
    TextSize text_size(const std::string& text, const FontSpec& font) const override;
    void Show(Form& form) override;
    void ShowModal(Form& form) override;
    void Hide(Form& form) override;
    void Refresh(Form& form) override;
    void DoEvents() override;
    void popup(Form& form, PopupMenu& menu, std::optional<Point> at, const MenuItem* bold) override;
    void SetFocus(Form& form, const void* control) override;
    void announce(Form& form, const std::string& text) override;
    void set_screen_cursor(MouseCursor cursor) override;
    std::int32_t GetWindowLongA(const Form& form, int index) override;
    void SetWindowLongA(Form& form, int index, std::int32_t value) override;
    void SetLayeredWindowAttributes(Form& form, Colour key, std::uint8_t alpha,
                                    std::uint32_t flags) override;
    int run() override;
    void prepare_end() override;

    /// The window that shows a form; nullptr for a form without one.
    FormWindow* window_of(const Form& form) const;
    const Cursors& cursors() const { return cursors_; }

private:
    struct Closed {
        /// Loops of events that were running when the window closed.
        int depth;
        std::unique_ptr<FormWindow> window;
    };

    FormWindow& make_window(Form& form, HWND owner);
    void user_closes(Form& form);
    void dispatch(const MSG& message);
    void forget_closed();

    /// Made anew for each font that is measured first.
    mutable Fonts fonts_;
    Cursors cursors_;
    const SIZE largest_;
    Scale scale_;
    EventDispatcher dispatcher_;
    WindowStyles styles_;
    int depth_ = 0;
    std::vector<Closed> closed_;
    std::map<const Form*, std::unique_ptr<FormWindow>> windows_;
};

} // namespace ostrelum::windows_platform
