#pragma once

#include "platform/qt/Announcement.h"
#include "platform/qt/ControlWidget.h"
#include "platform/qt/FocusFrame.h"
#include "platform/qt/Veil.h"
#include "platform/toolkit/FormFrame.h"
#include "platform/toolkit/KeyboardInput.h"

#include <QElapsedTimer>

#include <functional>
#include <optional>
#include <vector>

namespace ostrelum::qt_platform {

/// The window of a form, with a widget for each of its controls.
class FormWindow : public QWidget, private FocusView {
public:
    /// `kind` is a window of its own or a dialog, which a desktop keeps over the window it came
    /// from. `asked_to_close` runs when the user closes the window by its frame.
    FormWindow(const Form& form, const Toolkit& toolkit, const Cursors& cursors,
               const FormScale& scale, EventDispatcher& dispatcher, Qt::WindowType kind,
               std::function<void()> asked_to_close);

    WindowEvents& events() { return events_; }
    /// The program wishes a control to have the focus.
    void wish_focus(int control) { keyboard_.wish_focus(control); }
    /// Lets a screen reader say a text.
    void announce(const std::string& text);
    /// What a screen reader calls the window.
    QString reading() const;
    /// A menu comes up, which takes the mouse.
    void let_go_of_mouse() { mouse_.let_go(); }
    /// The widget of the control at a place of the form; nullptr for what has none.
    QWidget* widget(int place) const;
    /// Shows what differs.
    void sync();
    /// What of the window is to be seen, up to WindowStyles::opaque.
    void set_alpha(std::uint8_t alpha);
    /// Where a point of the client area is.
    QPoint on_screen(Point point) const;
    /// Brings the window up in the centre of the screen, together with its frame.
    void bring_up();
    /// Closes the window for good: it raises no event any more.
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
    int focused() const override;
    void set_focus(int control) override;
    void mark(int control) override;
    void make_widgets();
    void place_in(const QRect& screen);
    void sync_frame();
    void refuse_to_fill(Qt::WindowState state);
    void tell_readers();

    const Form& form_;
    WindowEvents events_;
    MouseInput mouse_;
    KeyboardInput keyboard_;
    const WindowContext context_;
    std::function<void()> asked_to_close_;
    std::vector<ControlWidget> controls_;
    FocusFrame focus_frame_;
    Announcement announcement_{*this};
    std::optional<Veil> veil_;
    /// Since the window came up anew because the desktop wanted it to fill the screen.
    QElapsedTimer came_up_;
    /// What the frame shows.
    std::optional<FormFrame> shown_;
    /// What a screen reader was last told of each control.
    std::vector<std::string> readings_;
};

} // namespace ostrelum::qt_platform
