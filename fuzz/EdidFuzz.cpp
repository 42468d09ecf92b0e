#include "platform/linux/Edid.h"

#include <cstdlib>

/// Any bytes as a monitor's data: no mode is without size or speed, and the limits are in order.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto edid = ostrelum::read_edid({reinterpret_cast<const char*>(data), size});
    if (!edid)
        return 0;
    for (const auto& timing : edid->detailed) {
        if (timing.width <= 0 || timing.height <= 0 || timing.refresh_mHz <= 0)
            std::abort();
    }
    for (const auto& limits : {edid->limits, edid->rates_of_modes}) {
        if (limits && (limits->lowest <= 0 || limits->lowest > limits->highest))
            std::abort();
    }
    return 0;
}
