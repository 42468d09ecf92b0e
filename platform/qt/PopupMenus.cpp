#include "platform/qt/PopupMenus.h"

#include "platform/qt/Text.h"

#include <QMenu>

namespace ostrelum::qt_platform {
namespace {

QAction* add_entry(QMenu& shown, const MenuItem& item)
{
    if (item.Caption == "-")
        return shown.addSeparator();
    QAction* action = shown.addAction(qt_text(item.Caption));
    action->setEnabled(item.Enabled);
    return action;
}

/// The style alone need not make the default entry bold.
void embolden(QMenu& shown, QAction& action)
{
    QFont font = shown.font();
    font.setBold(true);
    action.setFont(font);
    shown.setDefaultAction(&action);
}

} // namespace

void pop_up(FormWindow& window, EventDispatcher& dispatcher, const PopupMenu& menu, QPoint at,
            const MenuItem* bold)
{
    const Form& form = window.form();
    const auto holder = &form.entry_of(&menu) - form.controls.data();
    auto* shown = new QMenu(&window);
    shown->setAttribute(Qt::WA_DeleteOnClose);
    for (const ControlEntry& entry : form.controls) {
        const auto* item = std::get_if<MenuItem*>(&entry.control);
        if (!item || entry.container != holder)
            continue;
        QAction* action = add_entry(*shown, **item);
        if (*item == bold)
            embolden(*shown, *action);
        // Queued on the window: should it go meanwhile, the choice goes with it.
        QObject::connect(
            action, &QAction::triggered, &window,
            [&window, &dispatcher, &entry] {
                if (window.isVisible())
                    dispatcher.raise(window.form(), &entry, {.kind = EventKind::Click});
            },
            Qt::QueuedConnection);
    }
    shown->popup(at);
}

} // namespace ostrelum::qt_platform
