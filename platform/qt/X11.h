#pragma once

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <xcb/xcb.h>

/// What all questions to an X server need.
namespace ostrelum::qt_platform {

template <typename Reply>
std::unique_ptr<Reply, decltype(&std::free)> owned(Reply* reply)
{
    return {reply, std::free};
}

/// XCB_ATOM_NONE for a name that no client has used yet.
inline xcb_atom_t atom_of(xcb_connection_t* server, std::string_view name)
{
    const auto length = static_cast<std::uint16_t>(name.size());
    const auto reply = owned(
        xcb_intern_atom_reply(server, xcb_intern_atom(server, 1, length, name.data()), nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

} // namespace ostrelum::qt_platform
