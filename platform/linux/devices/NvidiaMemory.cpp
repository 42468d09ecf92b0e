#include "platform/linux/devices/NvidiaMemory.h"

#include <dlfcn.h>
#include <memory>

namespace ostrelum::linux_platform {
namespace {

/// The library's interface (NVIDIA Management Library, API reference), as much as is asked for.
using Device = void*;
struct Memory {
    unsigned long long total, free, used;
};
constexpr int success = 0;

using Library = std::unique_ptr<void, int (*)(void*)>;

template <class Function>
Function* function(const Library& library, const char* name)
{
    return reinterpret_cast<Function*>(::dlsym(library.get(), name));
}

} // namespace

std::optional<std::uint64_t> nvidia_memory(const std::string& slot)
{
    const Library library(::dlopen("libnvidia-ml.so.1", RTLD_NOW | RTLD_LOCAL), ::dlclose);
    if (!library)
        return std::nullopt;
    const auto start = function<int()>(library, "nvmlInit_v2");
    const auto find =
        function<int(const char*, Device*)>(library, "nvmlDeviceGetHandleByPciBusId_v2");
    const auto memory_of = function<int(Device, Memory*)>(library, "nvmlDeviceGetMemoryInfo");
    const auto end = function<int()>(library, "nvmlShutdown");
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
