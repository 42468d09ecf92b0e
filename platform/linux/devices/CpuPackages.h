#pragma once

#include "platform/linux/files/MachineView.h"
#include "platform/linux/formats/CpuInfo.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace ostrelum::linux_platform {

/// What the packages of a machine have in common, read when it is first asked for.
class CpuFacts {
public:
    explicit CpuFacts(const MachineView& machine) : machine_(machine) {}

    /// /proc/cpuinfo: the kernel makes it anew each time, and on large machines that takes a while.
    const CpuInfo& info();

    /// The kernel's name for the kind of processor.
    const std::optional<std::string>& architecture();

    /// The labels of the fitted sockets in the order of the firmware's table; empty for none.
    const std::vector<std::string>& sockets();

private:
    const MachineView& machine_;
    std::unique_ptr<const CpuInfo> info_;
    std::optional<std::optional<std::string>> architecture_;
    std::optional<std::vector<std::string>> sockets_;
};

/// A processor as one buys it: the logical processors of one package that are in use, in rising
/// order.
struct CpuPackage {
    const MachineView& machine;
    /// Place among the machine's packages, from 0.
    std::size_t place = 0;
    std::vector<std::uint64_t> cpus;
    /// Shared by the packages.
    std::shared_ptr<CpuFacts> facts;
};

/// The machine's packages by their numbers. On machines without firmware tables the kernel's
/// package numbers are those of clusters, and all are one.
std::vector<CpuPackage> cpu_packages(const MachineView& machine);

/// A file of a logical processor under /sys/devices/system/cpu/cpuN.
std::string cpu_file(std::uint64_t cpu, const char* name);

/// Sum of the package's caches of a level in KB, those for instructions alone left out. Nothing if
/// there is none.
std::optional<std::uint64_t> cache_kilobytes(const CpuPackage& package, std::uint64_t level);

/// The numbers of a list such as "0-3,6", which rise, as the kernel writes them; nothing inside for
/// other text, and for a number above the highest that a kernel is built for.
std::vector<std::uint64_t> numbers_of_list(std::string_view list);

} // namespace ostrelum::linux_platform
