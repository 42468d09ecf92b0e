#pragma once

#include "platform/linux/files/MachineView.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace ostrelum::linux_platform {

/// Whether a line of /proc/N/stat (proc_pid_stat(5)) describes a thread of the kernel. Nothing for
/// text that is no such line.
std::optional<bool> is_kernel_thread(std::string_view stat);

/// How many processes run, the kernel's own threads left out. Nothing where others' processes are
/// hidden. Those that `seen` has from the last count are not asked again; it becomes those of this
/// one.
std::optional<std::uint32_t> process_count(const Sysroot& root, std::vector<SeenProcess>& seen);

} // namespace ostrelum::linux_platform
