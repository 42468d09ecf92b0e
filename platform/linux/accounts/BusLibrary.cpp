#include "platform/linux/accounts/BusLibrary.h"

#include "platform/linux/files/SharedLibrary.h"

#include <optional>

namespace ostrelum::linux_platform {
namespace {

std::optional<BusLibrary> loaded()
{
    static const SharedLibrary library("libsystemd.so.0");
    bool complete = true;
    const auto take = [&]<class Function>(Function*& function, const char* name) {
        function = library.function<Function>(name);
        complete = complete && function;
    };
    BusLibrary bus = {};
    take(bus.close_unref, "sd_bus_close_unref");
    take(bus.message_unref, "sd_bus_message_unref");
    take(bus.open_system, "sd_bus_open_system");
    take(bus.is_ready, "sd_bus_is_ready");
    take(bus.process, "sd_bus_process");
    take(bus.wait, "sd_bus_wait");
    take(bus.set_method_call_timeout, "sd_bus_set_method_call_timeout");
    take(bus.call_method, "sd_bus_call_method");
    take(bus.get_property_trivial, "sd_bus_get_property_trivial");
    take(bus.message_read, "sd_bus_message_read");
    return complete ? std::optional(bus) : std::nullopt;
}

} // namespace

const BusLibrary* bus_library()
{
    static const std::optional<BusLibrary> library = loaded();
    return library ? &*library : nullptr;
}

} // namespace ostrelum::linux_platform
