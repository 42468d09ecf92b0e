#include "platform/qt/PopupMenus.h"

#include "platform/qt/Text.h"
#include "platform/toolkit/Menus.h"

#include <QMenu>

namespace ostrelum::qt_platform {
namespace {

QAction* add_entry(QMenu& shown, const MenuItem& item)
{
    if (is_separator(item))
        return shown.addSeparator();
    // What stands behind a tabulator is written as a shortcut; the window hears the keys.
    const QString shortcut = item.Shortcut.empty() ? QString() : u'\t' + qt_text(item.Shortcut);
    QAction* action = shown.addAction(qt_text(item.Caption) + shortcut);
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

void pop_up(FormWindow& window, const PopupMenu& menu, QPoint at, const MenuItem* bold)
{
    WindowEvents& events = window.events();
    auto* shown = new QMenu(&window);
    shown->setAttribute(Qt::WA_DeleteOnClose);
    for (const int place : entries_of(events.form(), menu)) {
        const auto* item = std::get<MenuItem*>(entry_at(events.form(), place).control);
        QAction* action = add_entry(*shown, *item);
        if (item == bold)
            embolden(*shown, *action);
        // Queued on the window: should that close meanwhile, the choice is dropped.
        QObject::connect(
            action, &QAction::triggered, &window,
            [&events, place] { events.raise(place, {.kind = EventKind::Click}); },
            Qt::QueuedConnection);
    }
    window.let_go_of_mouse();
    shown->popup(at);
}

} // namespace ostrelum::qt_platform
