#pragma once

#include "platform/qt/Keyboard.h"

namespace ostrelum::qt_platform {

/// The window of a form, with a widget for each of its controls.
class FormWindow : public QWidget {
public:
    /// `kind` is a window of its own or a dialog, which a desktop keeps over the window it came
    /// from. `asked_to_close` runs when the user closes the window by its frame.
    FormWindow(const WindowContext& context, Qt::WindowType kind,
               std::function<void()> asked_to_close);

    const Form& form() const { return context_.form; }
    const ControlBindings& bindings() const { return bindings_; }
    /// Hands on what differs.
    void sync();
    /// Brings the window up in the centre of the screen.
    void bring_up();
    /// Takes the window away for good: nothing comes from it any more.
    void close_down();
    /// Runs at the end of close_down().
    std::function<void()> gone;

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void make_bindings();
    void sync_frame();

    const WindowContext context_;
    std::function<void()> asked_to_close_;
    ControlBindings bindings_;
    Keyboard keyboard_;
    /// Copies of what the frame shows.
    struct Frame {
        std::string Caption;
        Point size;
        Colour BackColor = White;
        std::array<Picture, 2> Icon;
        MouseCursor MousePointer = MouseCursor::Default;
        bool operator==(const Frame&) const = default;
    };
    std::optional<Frame> shown_;
};

} // namespace ostrelum::qt_platform
