#include "fuzz/Target.h"
#include "platform/linux/formats/Edid.h"
#include "platform/linux/recording/MaskedBytes.h"

#include "tests/platform/linux/MadeEdid.h"

namespace {

void check(const std::string& bytes)
{
    const auto edid = ostrelum::linux_platform::read_edid(bytes);
    const std::string masked = ostrelum::linux_platform::masked_edid(bytes);
    if (!edid && masked.empty())
        return;
    const auto again = ostrelum::linux_platform::read_edid(masked);
    if (!edid || !again || again->detailed != edid->detailed || again->limits != edid->limits ||
        again->rates_of_modes != edid->rates_of_modes || again->name != edid->name)
        std::abort();
    for (const auto& timing : edid->detailed) {
        if (timing.width <= 0 || timing.height <= 0 || timing.refresh_mHz <= 0)
            std::abort();
    }
    for (const auto& limits : {edid->limits, edid->rates_of_modes}) {
        if (limits && (limits->lowest <= 0 || limits->lowest > limits->highest))
            std::abort();
    }
}

} // namespace

/// Any bytes as a monitor's data, as they are and as blocks whose sums are right: no mode is
/// without size or speed, the limits are in order, and masking changes none of them.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr std::size_t block = 128;
    std::string bytes(data, data + size);
    check(bytes);
    if (size >= block)
        bytes.replace(0, 8, "\0\xFF\xFF\xFF\xFF\xFF\xFF\0", 8);
    std::string right;
    for (std::size_t at = 0; at + block <= size; at += block)
        right += ostrelum::linux_platform::summed(bytes.substr(at, block));
    if (!right.empty())
        check(right);
    return 0;
}
