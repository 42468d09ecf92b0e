#include "platform/qt/Announcement.h"

#include <QAccessible>

namespace ostrelum::qt_platform {

Announcement::Announcement(QWidget& window) : QWidget(&window)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(0, 0, 0, 0);
    hide();
}

/// This version of the toolkit has no event for it; readers say the name of a notification when it
/// comes up.
void Announcement::say(const QString& text)
{
    if (!QAccessible::isActive())
        return;
    hide();
    setAccessibleName(text);
    show();
}

} // namespace ostrelum::qt_platform
