#pragma once

#include <QGuiApplication>

namespace ostrelum::qt_platform {

/// Whether the desktop is a Wayland one, which tells a program little of itself.
inline bool on_wayland()
{
    return QGuiApplication::platformName().startsWith(u"wayland");
}

} // namespace ostrelum::qt_platform
