#pragma once

#include "platform/qt/FormWindow.h"
#include "platform/qt/QtBackEnd.h"
#include "platform/toolkit/WindowStyles.h"

#include <QApplication>

#include <map>

namespace ostrelum::qt_platform {

class QtToolkit final : public Toolkit {
public:
    QtToolkit(int& argc, char** argv, const QtLook& look);
    ~QtToolkit() override;

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

    /// The widget that shows a form; nullptr for a form without a window.
    FormWindow* window_of(const Form& form) const;

private:
    FormWindow& make_window(Form& form, Qt::WindowType kind);
    void user_closes(Form& form);
    void apply_opacity(const Form& form);

    QApplication application_;
    Cursors cursors_;
    const FormScale scale_;
    EventDispatcher dispatcher_;
    std::map<const Form*, FormWindow*> windows_;
    WindowStyles styles_;
};

} // namespace ostrelum::qt_platform
