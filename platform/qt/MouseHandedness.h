#pragma once

#include <optional>

/// Which hand the mouse is set up for. Each function gives nothing where it cannot tell.
namespace ostrelum::qt_platform {

/// In the session that the program runs in.
std::optional<bool> left_handed();

/// On an X server, null for that of the environment: by the property that the libinput driver has
/// for each device, or by first and third button of the core pointer in each other's place.
std::optional<bool> left_handed_on_x11(const char* display);

/// Under Wayland only the desktop's settings tell: by the names in XDG_CURRENT_DESKTOP the settings
/// of GNOME and its kin (GSettings) or of KDE (kcminputrc).
std::optional<bool> left_handed_by_settings();

} // namespace ostrelum::qt_platform
