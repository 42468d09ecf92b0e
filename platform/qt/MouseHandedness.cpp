#include "platform/qt/MouseHandedness.h"

#include "platform/qt/DesktopSetting.h"

#include <QFile>
#include <QGuiApplication>
#include <QStandardPaths>
#include <QStringList>

namespace ostrelum::qt_platform {
namespace {

/// Each device has a group of its own, named after maker, model and name.
bool kde_left_handed()
{
    constexpr qint64 largest_file = 1 << 20;
    QFile file(QStandardPaths::locate(QStandardPaths::GenericConfigLocation, "kcminputrc"));
    if (file.fileName().isEmpty() || !file.open(QIODevice::ReadOnly))
        return false;
    bool in_device = false;
    for (const QByteArray& line : file.read(largest_file).split('\n')) {
        const QByteArray text = line.trimmed();
        if (text.startsWith('['))
            in_device = text.startsWith("[Libinput]");
        else if (in_device && text == "LeftHanded=true")
            return true;
    }
    return false;
}

} // namespace

std::optional<bool> left_handed_by_settings()
{
    static constexpr struct {
        const char* desktop;
        const char* schema;
    } families[] = {
        {"GNOME", "org.gnome.desktop.peripherals.mouse"},
        {"Unity", "org.gnome.desktop.peripherals.mouse"},
        {"Budgie", "org.gnome.desktop.peripherals.mouse"},
        {"Pantheon", "org.gnome.desktop.peripherals.mouse"},
        {"X-Cinnamon", "org.cinnamon.desktop.peripherals.mouse"},
        {"MATE", "org.mate.peripherals-mouse"},
    };
    const QStringList desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(':');
    if (desktops.contains("KDE"))
        return kde_left_handed();
    for (const auto& family : families) {
        if (desktops.contains(family.desktop))
            return desktop_setting(family.schema, "left-handed");
    }
    return std::nullopt;
}

std::optional<bool> left_handed()
{
    // The X server inside a Wayland session has pointers of its own, which are always right-handed.
    if (qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))
        return left_handed_by_settings();
    return QGuiApplication::platformName() == "xcb" ? left_handed_on_x11(nullptr) : std::nullopt;
}

} // namespace ostrelum::qt_platform
