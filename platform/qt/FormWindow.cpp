#include "platform/qt/FormWindow.h"

#include "platform/qt/Colours.h"
#include "platform/qt/Images.h"
#include "platform/qt/MouseEventFilter.h"
#include "platform/qt/Text.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QIcon>
#include <QScreen>

namespace ostrelum::qt_platform {
namespace {

Qt::WindowFlags frame_of(const Form& form, Qt::WindowType kind)
{
    Qt::WindowFlags flags = kind | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                            Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    if (form.MinButton)
        flags |= Qt::WindowMinimizeButtonHint;
    return flags;
}

} // namespace

FormWindow::FormWindow(const WindowContext& context, Qt::WindowType kind,
                       std::function<void()> asked_to_close)
    : QWidget(nullptr, frame_of(context.form, kind)), context_(context),
      asked_to_close_(std::move(asked_to_close)), keyboard_(*this, bindings_, context_)
{
    // The window itself has the focus until the user moves it, so that no control starts marked.
    setFocusPolicy(Qt::ClickFocus);
    setFocus();
    new MouseEventFilter(*this, nullptr, context_);
    installEventFilter(this);
    make_bindings();
}

void FormWindow::make_bindings()
{
    for (const ControlEntry& entry : context_.form.controls) {
        QWidget* parent = this;
        if (entry.container >= 0) {
            const auto& holder = bindings_.at(static_cast<std::size_t>(entry.container));
            parent = holder && holder->widget() ? holder->widget() : this;
        }
        bindings_.push_back(make_binding(entry, *parent, context_));
        if (const auto& made = bindings_.back(); made && made->widget())
            made->widget()->installEventFilter(this);
    }
}

void FormWindow::sync()
{
    sync_frame();
    for (const auto& binding : bindings_) {
        if (binding)
            binding->sync();
    }
    keyboard_.show_focus();
}

void FormWindow::sync_frame()
{
    const Form& form = context_.form;
    const Frame wanted{form.Caption,
                       {form.ClientWidth, form.ClientHeight},
                       form.BackColor,
                       form.Icon,
                       form.MousePointer};
    if (shown_ == wanted)
        return;
    setWindowTitle(qt_text(form.Caption));
    setFixedSize(form.ClientWidth, form.ClientHeight);
    setPalette(window_palette(form.BackColor));
    context_.cursors.set(*this, form.MousePointer);
    QIcon icon;
    for (const Picture& picture : form.Icon) {
        icon.addPixmap(pixmap_of(picture.bitmap()));
        icon.addPixmap(pixmap_of(picture.doubled()));
    }
    setWindowIcon(icon);
    shown_ = wanted;
}

void FormWindow::bring_up()
{
    if (!isVisible()) {
        const QScreen* under_pointer = QGuiApplication::screenAt(QCursor::pos());
        const QScreen* screen = under_pointer ? under_pointer : QGuiApplication::primaryScreen();
        if (screen)
            move(screen->availableGeometry().center() - rect().center());
    }
    show();
    raise();
    activateWindow();
}

void FormWindow::close_down()
{
    for (const auto& binding : bindings_) {
        if (binding)
            binding->stop();
    }
    hide();
    if (gone)
        gone();
}

void FormWindow::closeEvent(QCloseEvent* event)
{
    event->ignore();
    asked_to_close_();
}

void FormWindow::keyPressEvent(QKeyEvent* event)
{
    event->setAccepted(keyboard_.key(*event));
}

/// Menus come from presses of the mouse and from keyPressEvent().
void FormWindow::contextMenuEvent(QContextMenuEvent* event)
{
    event->accept();
}

bool FormWindow::focusNextPrevChild(bool next)
{
    const bool moved = QWidget::focusNextPrevChild(next);
    // Not where a control that goes gives its focus away.
    if (!context_.dispatcher.syncing())
        keyboard_.set_in_use(true);
    return moved;
}

/// Sees the events of the window and of all its widgets, before they get them.
bool FormWindow::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress)
        keyboard_.set_in_use(false);
    return false;
}

} // namespace ostrelum::qt_platform
