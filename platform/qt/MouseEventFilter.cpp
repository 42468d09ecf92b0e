#include "platform/qt/MouseEventFilter.h"

#include "platform/qt/Tooltips.h"

#include <QHelpEvent>

#include <algorithm>
#include <array>

namespace ostrelum::qt_platform {
namespace {

int number_of(Qt::MouseButtons buttons)
{
    return (buttons & Qt::LeftButton ? LeftButton : 0) |
           (buttons & Qt::RightButton ? RightButton : 0) |
           (buttons & Qt::MiddleButton ? MiddleButton : 0);
}

int number_of(Qt::KeyboardModifiers modifiers)
{
    return (modifiers & Qt::ShiftModifier ? 1 : 0) | (modifiers & Qt::ControlModifier ? 2 : 0) |
           (modifiers & Qt::AltModifier ? 4 : 0);
}

bool has_listener(const Form& form, const ControlEntry& entry)
{
    constexpr std::array kinds{EventKind::Click, EventKind::MouseDown, EventKind::MouseUp,
                               EventKind::MouseMove};
    return std::ranges::any_of(kinds,
                               [&](EventKind kind) { return form.listens(entry.name, kind); });
}

} // namespace

MouseEventFilter::MouseEventFilter(QWidget& widget, const ControlEntry* entry,
                                   const WindowContext& context)
    : QObject(&widget), widget_(widget), context_(context), target_(entry), target_widget_(&widget)
{
    const auto& controls = context.form.controls;
    while (target_ && !has_listener(context.form, *target_)) {
        target_ = target_->container < 0
                      ? nullptr
                      : &controls.at(static_cast<std::size_t>(target_->container));
        target_widget_ = target_widget_->parentWidget();
    }
    widget.setMouseTracking(listens(EventKind::MouseMove));
    widget.installEventFilter(this);
}

bool MouseEventFilter::listens(EventKind kind) const
{
    return context_.form.listens(target_ ? target_->name : "Form", kind);
}

QPoint MouseEventFilter::in_target(const QMouseEvent& mouse) const
{
    return widget_.mapTo(target_widget_, mouse.position().toPoint());
}

void MouseEventFilter::raise(EventKind kind, int button, Qt::KeyboardModifiers modifiers,
                             QPoint at) const
{
    // An earlier event of the same press may have taken the window away.
    if (target_widget_->window()->isVisible())
        context_.dispatcher.raise(context_.form, target_,
                                  {.kind = kind,
                                   .button = button,
                                   .shift = number_of(modifiers),
                                   .x = at.x(),
                                   .y = at.y()});
}

bool MouseEventFilter::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: return button_down(static_cast<QMouseEvent&>(*event));
    case QEvent::MouseButtonRelease: return button_up(static_cast<QMouseEvent&>(*event));
    case QEvent::MouseMove: return moved(static_cast<QMouseEvent&>(*event));
    case QEvent::ToolTip: return show_tooltip(widget_, static_cast<QHelpEvent&>(*event));
    default: return false;
    }
}

bool MouseEventFilter::button_down(const QMouseEvent& mouse)
{
    pressed_ |= mouse.button();
    raise(EventKind::MouseDown, number_of(mouse.button()), mouse.modifiers(), in_target(mouse));
    return true;
}

bool MouseEventFilter::button_up(const QMouseEvent& mouse)
{
    if (!(pressed_ & mouse.button()))
        return true;
    pressed_ &= ~Qt::MouseButtons(mouse.button());
    const QPoint at = in_target(mouse);
    raise(EventKind::MouseUp, number_of(mouse.button()), mouse.modifiers(), at);
    if (mouse.button() == Qt::LeftButton && target_widget_->rect().contains(at))
        raise(EventKind::Click, LeftButton, mouse.modifiers(), at);
    return true;
}

bool MouseEventFilter::moved(const QMouseEvent& mouse)
{
    if (listens(EventKind::MouseMove))
        raise(EventKind::MouseMove, number_of(mouse.buttons()), mouse.modifiers(),
              in_target(mouse));
    return true;
}

void MouseEventFilter::press(int button)
{
    const QPoint at = widget_.mapTo(target_widget_, widget_.rect().center());
    context_.dispatcher.keyboard_point = target_widget_->mapToGlobal(at);
    raise(EventKind::MouseDown, button, {}, at);
    raise(EventKind::MouseUp, button, {}, at);
    if (button == LeftButton)
        raise(EventKind::Click, button, {}, at);
}

} // namespace ostrelum::qt_platform
