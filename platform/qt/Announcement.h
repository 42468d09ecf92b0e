#pragma once

#include <QWidget>

namespace ostrelum::qt_platform {

/// What a screen reader is to say at once: a notification that comes up in a window, and that
/// nobody sees.
class Announcement : public QWidget {
public:
    explicit Announcement(QWidget& window);
    void say(const QString& text);
};

} // namespace ostrelum::qt_platform
