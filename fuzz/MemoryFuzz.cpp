#include "fuzz/Target.h"
#include "platform/linux/devices/MemoryDevices.h"

#include <cstring>

using namespace ostrelum;
using namespace ostrelum::linux_platform;

namespace {

/// Where type 17 of DSP0134 has its fields, in the order of the bytes.
struct Slot {
    std::uint8_t type, length;
    std::uint16_t handle, array, error, total_width, data_width, size;
    std::uint8_t form, set, locator, bank, kind, rest[9];
    std::uint32_t extended;
};
static_assert(offsetof(Slot, kind) == 0x12 && offsetof(Slot, extended) == 0x1C);

/// Bytes of a slot; nothing for an empty one and for a size that nobody tells.
std::optional<std::uint64_t> capacity(const Slot& slot)
{
    if (slot.size == 0x7FFF)
        return std::uint64_t{slot.extended & 0x7FFFFFFFU} << 20;
    const bool known = slot.size != 0 && slot.size != 0xFFFF;
    const bool kilobytes = slot.size > 0x7FFF;
    return known ? std::optional(std::uint64_t{slot.size & 0x7FFFU} << (kilobytes ? 10 : 20))
                 : std::nullopt;
}

} // namespace

/// Any bytes as a slot for memory of the firmware's table, which here also has what stands before
/// them: size and width are those of the bytes, and labels are clean.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const ByteView bytes(data, size);
    for (const MemoryDevice& device : memory_of_table(bytes)) {
        require(!device.total_width || (*device.total_width > 0 && *device.total_width < 0xFFFF));
        require_clean(device.locator);
    }
    Slot slot = {};
    std::memcpy(&slot, data, std::min(size, sizeof slot));
    slot.type = 17;
    slot.length = sizeof slot;
    std::string table(reinterpret_cast<const char*>(&slot), sizeof slot);
    table += std::string("DIMM 0\0\0", 8);
    const auto devices = memory_of_table(bytes_of(table));
    const bool firmware = slot.kind == 8 || slot.kind == 9;
    require(devices.empty() == (slot.size == 0 || firmware));
    for (const MemoryDevice& device : devices) {
        const bool has_width = slot.total_width != 0 && slot.total_width != 0xFFFF;
        require(device.capacity == capacity(slot));
        require(device.total_width.value_or(0) == (has_width ? slot.total_width : 0));
        require(device.locator.has_value() == (slot.locator == 1));
    }
    return 0;
}
