#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace ostrelum::linux_platform {

/// Memory in bytes of a card that NVIDIA's own driver runs, by place on the PCI bus. It is asked
/// for through the management library that comes with the driver: no file of the kernel has it.
/// Nothing without that library.
std::optional<std::uint64_t> nvidia_memory(const std::string& slot);

} // namespace ostrelum::linux_platform
