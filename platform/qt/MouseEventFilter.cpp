#include "platform/qt/MouseEventFilter.h"

#include "platform/qt/Keys.h"
#include "platform/qt/Tooltips.h"

#include <QHelpEvent>

namespace ostrelum::qt_platform {

MouseEventFilter::MouseEventFilter(QWidget& widget, int place, const WindowContext& context)
    : QObject(&widget), widget_(widget), place_(place), mouse_(context.mouse), scale_(context.scale)
{
    const Form& form = context.events.form();
    const int target = mouse_target(form, place);
    widget.setMouseTracking(form.listens(name_of(form, target), EventKind::MouseMove));
    widget.installEventFilter(this);
}

Point MouseEventFilter::point_of(const QMouseEvent& mouse) const
{
    return scale_.to_form(widget_.mapTo(widget_.window(), mouse.position().toPoint()));
}

bool MouseEventFilter::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::ToolTip)
        return show_tooltip(widget_, static_cast<QHelpEvent&>(*event));
    const auto* mouse = dynamic_cast<QMouseEvent*>(event);
    if (!mouse)
        return false;
    const int shift = number_of(mouse->modifiers());
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        mouse_.button_down(place_, number_of(mouse->button()), shift, point_of(*mouse));
        return true;
    case QEvent::MouseButtonRelease:
        mouse_.button_up(number_of(mouse->button()), shift, point_of(*mouse));
        return true;
    case QEvent::MouseMove:
        mouse_.moved(place_, number_of(mouse->buttons()), shift, point_of(*mouse));
        return true;
    default: return false;
    }
}

} // namespace ostrelum::qt_platform
