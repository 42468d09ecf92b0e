#include "platform/qt/FormWindow.h"

#include "platform/qt/Colours.h"
#include "platform/qt/FrameMargins.h"
#include "platform/qt/Images.h"
#include "platform/qt/Keys.h"
#include "platform/qt/MouseEventFilter.h"
#include "platform/qt/Text.h"
#include "platform/qt/Wayland.h"
#include "platform/toolkit/Reading.h"

#include <QAccessible>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QIcon>
#include <QScreen>
#include <QWindow>

#include <algorithm>

namespace ostrelum::qt_platform {
namespace {

Qt::WindowFlags flags_of(const Form& form, Qt::WindowType kind)
{
    Qt::WindowFlags flags = kind | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                            Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    if (form.MinButton)
        flags |= Qt::WindowMinimizeButtonHint;
    return flags;
}

QIcon icon_of(const FormFrame& frame)
{
    QIcon icon;
    for (const Picture& picture : frame.Icon) {
        icon.addPixmap(pixmap_of(picture.bitmap()));
        icon.addPixmap(pixmap_of(picture.doubled()));
    }
    return icon;
}

} // namespace

FormWindow::FormWindow(const Form& form, const Toolkit& toolkit, const Cursors& cursors,
                       const FormScale& scale, EventDispatcher& dispatcher, Qt::WindowType kind,
                       std::function<void()> asked_to_close)
    : QWidget(nullptr, flags_of(form, kind)), form_(form), events_(form, dispatcher),
      mouse_(events_),
      keyboard_(events_, mouse_, *this), context_{toolkit, cursors, scale, events_, mouse_},
      asked_to_close_(std::move(asked_to_close)), focus_frame_(*this)
{
    setFocusPolicy(Qt::ClickFocus);
    setFocus();
    new MouseEventFilter(*this, form_itself, context_);
    installEventFilter(this);
    make_widgets();
    if (on_wayland())
        veil_.emplace(*this);
    // The native window is there before it shows, so that it comes up with its opacity.
    winId();
    connect(windowHandle(), &QWindow::windowStateChanged, this, &FormWindow::refuse_to_fill);
}

void FormWindow::make_widgets()
{
    for (const ControlEntry& entry : form_.controls) {
        QWidget* holder = entry.container == form_itself ? nullptr : widget(entry.container);
        controls_.push_back(
            make_control_widget(place_of(form_, entry), holder ? *holder : *this, context_));
        if (QWidget* made = controls_.back().widget)
            made->installEventFilter(this);
    }
}

QWidget* FormWindow::widget(int place) const
{
    return controls_.at(static_cast<std::size_t>(place)).widget;
}

void FormWindow::sync()
{
    sync_frame();
    const int focus = keyboard_.focus_after_change();
    for (const ControlWidget& control : controls_) {
        if (control.binding)
            control.binding->sync();
    }
    if (focus != focused())
        set_focus(focus);
    keyboard_.show_focus();
    if (QAccessible::isActive())
        tell_readers();
}

/// Readers are told when a text has changed, also one that they read with another.
void FormWindow::tell_readers()
{
    readings_.resize(controls_.size());
    for (int place = 0; place < static_cast<int>(controls_.size()); ++place) {
        std::string& told = readings_[static_cast<std::size_t>(place)];
        std::string reading = reading_of(form_, place);
        if (widget(place) && reading != told) {
            QAccessibleEvent event(widget(place), QAccessible::NameChanged);
            QAccessible::updateAccessibility(&event);
        }
        told = std::move(reading);
    }
}

void FormWindow::announce(const std::string& text)
{
    announcement_.say(qt_text(text));
}

QString FormWindow::reading() const
{
    return qt_text(reading_of(form_, form_itself));
}

void FormWindow::sync_frame()
{
    FormFrame wanted = frame_of(form_);
    if (shown_ == wanted)
        return;
    setWindowTitle(qt_text(wanted.Caption));
    setFixedSize(context_.scale.to_window(wanted.ClientWidth),
                 context_.scale.to_window(wanted.ClientHeight));
    if (veil_)
        veil_->resize(size());
    setPalette(window_palette(wanted.BackColor));
    context_.cursors.set(*this, wanted.MousePointer);
    setWindowIcon(icon_of(wanted));
    shown_ = std::move(wanted);
}

void FormWindow::set_alpha(std::uint8_t alpha)
{
    if (veil_) {
        veil_->set_alpha(alpha);
        return;
    }
    setWindowOpacity(static_cast<double>(alpha) / WindowStyles::opaque);
    // On X11 the new opacity stays in the connection's buffer until something is painted: without
    // this, a fade that nothing else accompanies stands still after its first step.
    update(0, 0, 1, 1);
}

QPoint FormWindow::on_screen(Point point) const
{
    return mapToGlobal(context_.scale.to_window(point));
}

void FormWindow::bring_up()
{
    if (!isVisible()) {
        if (const QScreen* screen = screen_of_new_window())
            place_in(screen->availableGeometry());
    }
    show();
    raise();
    activateWindow();
}

/// In the middle, its frame included; on a screen that is too small the top left corner is to be
/// seen, with the frame's buttons and the options.
void FormWindow::place_in(const QRect& screen)
{
    const QMargins frame = frame_margins(*windowHandle());
    QRect whole = geometry().marginsAdded(frame);
    whole.moveCenter(screen.center());
    whole.moveTo(std::max(whole.left(), screen.left()), std::max(whole.top(), screen.top()));
    setGeometry(whole.marginsRemoved(frame));
}

void FormWindow::close_down()
{
    events_.close();
    for (const ControlWidget& control : controls_) {
        if (control.binding)
            control.binding->stop();
    }
    hide();
    if (gone)
        gone();
}

int FormWindow::focused() const
{
    const QWidget* focus = focusWidget();
    for (int place = 0; focus && place < static_cast<int>(controls_.size()); ++place) {
        if (widget(place) == focus)
            return place;
    }
    return form_itself;
}

void FormWindow::set_focus(int control)
{
    if (control == form_itself)
        setFocus(Qt::OtherFocusReason);
    else
        widget(control)->setFocus(Qt::TabFocusReason);
}

void FormWindow::mark(int control)
{
    if (control == form_itself || !widget(control)->isVisible()) {
        focus_frame_.hide();
        return;
    }
    focus_frame_.follow(context_.scale.to_window(area_of_reading(form_, control)));
    if (veil_)
        veil_->raise();
}

void FormWindow::closeEvent(QCloseEvent* event)
{
    event->ignore();
    asked_to_close_();
}

/// Where the desktop leaves the frame to the toolkit, that has a button for filling the screen
/// whatever the flags say; some desktops have keys for it.
void FormWindow::refuse_to_fill(Qt::WindowState state)
{
    if (state != Qt::WindowMaximized && state != Qt::WindowFullScreen)
        return;
    windowHandle()->setWindowStates(Qt::WindowNoState);
    if (!on_wayland())
        return;
    // There the toolkit has agreed already, and some desktops end a program whose next picture is
    // not as large as agreed. Coming up anew, the window has agreed to nothing. Where every window
    // is made to fill the screen that would have no end, so it does so once.
    constexpr qint64 settled = 250;
    if (!came_up_.isValid() || came_up_.hasExpired(settled)) {
        hide();
        show();
        came_up_.start();
    }
}

void FormWindow::keyPressEvent(QKeyEvent* event)
{
    event->setAccepted(
        keyboard_.key(key_of(*event), number_of(event->modifiers()), event->isAutoRepeat()));
}

/// Menus come from presses of the mouse and from keyPressEvent().
void FormWindow::contextMenuEvent(QContextMenuEvent* event)
{
    event->accept();
}

/// Called for Tab and Shift+Tab, and where a control with the focus is hidden: there sync() moves
/// the focus.
bool FormWindow::focusNextPrevChild(bool next)
{
    return events_.syncing() || keyboard_.key(Key::Tab, next ? 0 : 1, false);
}

/// Sees the events of the window and of all its widgets, before they get them.
bool FormWindow::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress)
        keyboard_.set_in_use(false);
    if (event->type() == QEvent::KeyPress && object != this) {
        // A list would look for an entry with the letter.
        const auto& key = static_cast<QKeyEvent&>(*event);
        const int shift = number_of(key.modifiers());
        return KeyboardInput::is_shortcut(key_of(key), shift) &&
               keyboard_.key(key_of(key), shift, key.isAutoRepeat());
    }
    return false;
}

} // namespace ostrelum::qt_platform
