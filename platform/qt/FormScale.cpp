#include "platform/qt/FormScale.h"

#include "platform/qt/FrameMargins.h"
#include "platform/qt/Wayland.h"

#include <QCursor>

namespace ostrelum::qt_platform {
namespace {

/// Pixels of the screen for each of the form's, at which the smallest letters, 11 pixels high, can
/// still be read.
constexpr double smallest = 0.6;
/// More than any frame and any bar of a desktop take.
constexpr QSize most_around(60, 120);
/// What they are taken to be on Wayland, where no program is told.
constexpr QMargins usual_frame(4, 32, 4, 8);
constexpr int usual_bar = 32;

QMargins margins_of_desktop()
{
    if (on_wayland())
        return usual_frame + QMargins(0, usual_bar, 0, 0);
    QWindow unseen;
    unseen.create();
    return frame_margins(unseen);
}

/// Pictures are sharp at quarters.
double drawable(double scale)
{
    return scale >= 1 ? std::floor(scale * 4) / 4 : std::max(scale, smallest);
}

} // namespace

const QScreen* screen_of_new_window()
{
    const QScreen* under_mouse = QGuiApplication::screenAt(QCursor::pos());
    return under_mouse ? under_mouse : QGuiApplication::primaryScreen();
}

FormScale fitting_scale(QSize form)
{
    const QScreen* screen = screen_of_new_window();
    if (form.isEmpty() || !screen)
        return {};
    const QSize all = screen->availableSize();
    // Most screens are large enough, and nobody needs to be asked about the frame.
    if ((form + most_around).boundedTo(all) == form + most_around)
        return {};
    const QSize room = all.shrunkBy(margins_of_desktop());
    const double most = std::min(room.width() / static_cast<double>(form.width()),
                                 room.height() / static_cast<double>(form.height()));
    const double of_screen = screen->devicePixelRatio();
    return {std::min(1.0, drawable(most * of_screen) / of_screen)};
}

} // namespace ostrelum::qt_platform
