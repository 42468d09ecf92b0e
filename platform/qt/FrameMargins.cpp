#include "platform/qt/FrameMargins.h"

#include "platform/qt/X11.h"

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QThread>

#include <algorithm>
#include <optional>
#include <span>

/// Extended Window Manager Hints: _NET_REQUEST_FRAME_EXTENTS.
namespace ostrelum::qt_platform {
namespace {

/// What a window manager that promises an answer is given to answer, in milliseconds.
constexpr int patience = 200;
/// More pixels than any frame has at a side.
constexpr std::uint32_t widest = 1000;

/// A window whose server is asked.
struct X11Window {
    xcb_connection_t* server;
    xcb_window_t window;

    auto property(xcb_window_t of, const char* name, xcb_atom_t type) const
    {
        constexpr std::uint32_t most_words = 1024;
        return owned(xcb_get_property_reply(
            server, xcb_get_property(server, 0, of, atom_of(server, name), type, 0, most_words),
            nullptr));
    }
    xcb_window_t root() const
    {
        const auto geometry =
            owned(xcb_get_geometry_reply(server, xcb_get_geometry(server, window), nullptr));
        return geometry ? geometry->root : xcb_window_t{XCB_WINDOW_NONE};
    }
};

/// The numbers of a property, which has 32 bits for each.
std::span<const std::uint32_t> numbers(const auto& property)
{
    if (!property || property->format != 32)
        return {};
    return {static_cast<const std::uint32_t*>(xcb_get_property_value(property.get())),
            static_cast<std::size_t>(xcb_get_property_value_length(property.get())) / 4};
}

bool promises(const X11Window& x11, xcb_window_t root, xcb_atom_t request)
{
    const auto supported = x11.property(root, "_NET_SUPPORTED", XCB_ATOM_ATOM);
    return request != XCB_ATOM_NONE && std::ranges::count(numbers(supported), request) > 0;
}

void ask(const X11Window& x11, xcb_window_t root, xcb_atom_t request)
{
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = x11.window;
    message.type = request;
    constexpr std::uint32_t to_the_manager =
        XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_send_event(x11.server, 0, root, to_the_manager, reinterpret_cast<const char*>(&message));
    xcb_flush(x11.server);
}

/// In pixels of the screen.
std::optional<QMarginsF> answer(const X11Window& x11)
{
    const auto told = x11.property(x11.window, "_NET_FRAME_EXTENTS", XCB_ATOM_CARDINAL);
    const auto widths = numbers(told);
    if (widths.size() != 4 || std::ranges::max(widths) > widest)
        return std::nullopt;
    return QMarginsF(widths[0], widths[2], widths[1], widths[3]);
}

} // namespace

QMargins frame_margins(QWindow& window)
{
    // The platform in memory, too, has the interface, without a server behind it.
    auto* desktop = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!desktop || QGuiApplication::platformName() != u"xcb")
        return {};
    const X11Window x11{desktop->connection(), static_cast<xcb_window_t>(window.winId())};
    const xcb_window_t root = x11.root();
    const xcb_atom_t request = atom_of(x11.server, "_NET_REQUEST_FRAME_EXTENTS");
    if (!promises(x11, root, request))
        return {};
    ask(x11, root, request);
    for (const QDeadlineTimer end(patience); !end.hasExpired(); QThread::msleep(1)) {
        if (const auto margins = answer(x11))
            return (*margins / window.devicePixelRatio()).toMargins();
    }
    return {};
}

} // namespace ostrelum::qt_platform
