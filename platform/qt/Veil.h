#pragma once

#include "platform/toolkit/WindowStyles.h"

#include <QWidget>

namespace ostrelum::qt_platform {

/// Lets through what lies behind a window on Wayland, whose protocol knows no opacity of a window,
/// but has every compositor take pixels with an alpha. It lies over all of the window and lowers
/// the alpha of what is painted under it, so that a small change is still a small area to paint.
class Veil : public QWidget {
public:
    /// Before the window has a native one. It lies over what `window` holds by then.
    explicit Veil(QWidget& window);
    /// What of the window is left; nothing of the veil where that is all.
    void set_alpha(std::uint8_t alpha);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::uint8_t alpha_ = WindowStyles::opaque;
};

} // namespace ostrelum::qt_platform
