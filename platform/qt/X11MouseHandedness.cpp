#include "platform/qt/MouseHandedness.h"

#include "platform/qt/X11.h"

#include <xcb/xinput.h>

namespace ostrelum::qt_platform {
namespace {

bool buttons_are_swapped(xcb_connection_t* server)
{
    const auto map =
        owned(xcb_get_pointer_mapping_reply(server, xcb_get_pointer_mapping(server), nullptr));
    if (!map || xcb_get_pointer_mapping_map_length(map.get()) < 3)
        return false;
    const std::uint8_t* buttons = xcb_get_pointer_mapping_map(map.get());
    return buttons[0] == 3 && buttons[2] == 1;
}

bool is_set(xcb_connection_t* server, xcb_input_device_id_t device, xcb_atom_t property)
{
    const auto reply = owned(xcb_input_xi_get_property_reply(
        server, xcb_input_xi_get_property(server, device, 0, property, XCB_ATOM_ANY, 0, 1),
        nullptr));
    return reply && reply->format == 8 && reply->num_items > 0 &&
           *static_cast<const std::uint8_t*>(xcb_input_xi_get_property_items(reply.get())) == 1;
}

bool a_device_is_left_handed(xcb_connection_t* server)
{
    const auto* extension = xcb_get_extension_data(server, &xcb_input_id);
    const xcb_atom_t property = atom_of(server, "libinput Left Handed Enabled");
    if (!extension || !extension->present || property == XCB_ATOM_NONE)
        return false;
    const auto version = owned(xcb_input_xi_query_version_reply(
        server, xcb_input_xi_query_version(server, 2, 0), nullptr));
    const auto devices = owned(xcb_input_xi_query_device_reply(
        server, xcb_input_xi_query_device(server, XCB_INPUT_DEVICE_ALL), nullptr));
    if (!version || !devices)
        return false;
    for (auto each = xcb_input_xi_query_device_infos_iterator(devices.get()); each.rem > 0;
         xcb_input_xi_device_info_next(&each)) {
        const bool pointer = each.data->type == XCB_INPUT_DEVICE_TYPE_SLAVE_POINTER;
        if (pointer && is_set(server, each.data->deviceid, property))
            return true;
    }
    return false;
}

} // namespace

std::optional<bool> left_handed_on_x11(const char* display)
{
    // A connection of its own: the toolkit's has agreed on another version of the extension.
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> server(
        xcb_connect(display, nullptr), xcb_disconnect);
    if (xcb_connection_has_error(server.get()) != 0)
        return std::nullopt;
    return buttons_are_swapped(server.get()) || a_device_is_left_handed(server.get());
}

} // namespace ostrelum::qt_platform
