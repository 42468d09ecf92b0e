#pragma once

#include <QMargins>
#include <QWindow>

namespace ostrelum::qt_platform {

/// How wide a frame the desktop is going to put round a window that does not show yet, in the
/// window's own pixels. No margins where it does not tell, as on Wayland.
QMargins frame_margins(QWindow& window);

} // namespace ostrelum::qt_platform
