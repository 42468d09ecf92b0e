#include "platform/linux/devices/NvidiaMemory.h"

#include "platform/linux/files/SharedLibrary.h"

namespace ostrelum::linux_platform {
namespace {

/// The library's interface (NVIDIA Management Library, API reference), as much as is asked for.
using Device = void*;
struct Memory {
    unsigned long long total, free, used;
};
constexpr int success = 0;

} // namespace

std::optional<std::uint64_t> nvidia_memory(const std::string& slot)
{
    const SharedLibrary library("libnvidia-ml.so.1");
    const auto start = library.function<int()>("nvmlInit_v2");
    const auto find =
        library.function<int(const char*, Device*)>("nvmlDeviceGetHandleByPciBusId_v2");
    const auto memory_of = library.function<int(Device, Memory*)>("nvmlDeviceGetMemoryInfo");
    const auto end = library.function<int()>("nvmlShutdown");
    if (!start || !find || !memory_of || !end || start() != success)
        return std::nullopt;
    Device device = nullptr;
    Memory memory = {};
    const bool answered =
        find(slot.c_str(), &device) == success && memory_of(device, &memory) == success;
    end();
    return answered && memory.total != 0 ? std::optional<std::uint64_t>(memory.total)
                                         : std::nullopt;
}

} // namespace ostrelum::linux_platform
