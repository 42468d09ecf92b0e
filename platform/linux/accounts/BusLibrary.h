#pragma once

#include <systemd/sd-bus.h>

namespace ostrelum::linux_platform {

/// What is used of systemd's library for the bus (sd-bus(3)). With it come six others, whose
/// loading takes longer than most of what the program is asked for.
struct BusLibrary {
    decltype(sd_bus_close_unref)* close_unref;
    decltype(sd_bus_message_unref)* message_unref;
    decltype(sd_bus_open_system)* open_system;
    decltype(sd_bus_is_ready)* is_ready;
    decltype(sd_bus_process)* process;
    decltype(sd_bus_wait)* wait;
    decltype(sd_bus_set_method_call_timeout)* set_method_call_timeout;
    decltype(sd_bus_call_method)* call_method;
    decltype(sd_bus_get_property_trivial)* get_property_trivial;
    decltype(sd_bus_message_read)* message_read;
};

/// Loaded with the first call, and kept; nullptr on a machine that does not have it.
const BusLibrary* bus_library();

} // namespace ostrelum::linux_platform
