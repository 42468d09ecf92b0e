#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace ostrelum::linux_platform {

/// Figures of /proc/meminfo, in KB. What the file does not have is nothing.
struct MemoryInfo {
    std::optional<std::uint64_t> total;
    /// What programs can still have, files in memory that can be read again included.
    std::optional<std::uint64_t> available;
    std::optional<std::uint64_t> swap_total;
    std::optional<std::uint64_t> swap_free;
};

MemoryInfo parse_meminfo(std::string_view text);

} // namespace ostrelum::linux_platform
