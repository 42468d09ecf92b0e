#include "platform/linux/devices/CpuPackages.h"

#include "platform/linux/devices/FirmwareTable.h"
#include "platform/linux/formats/Smbios.h"
#include "platform/linux/os/KernelRelease.h"
#include "platform/linux/text/Text.h"

#include <map>
#include <set>

namespace ostrelum::linux_platform {
namespace {

/// No kernel is built for more logical processors (NR_CPUS); a longer list is none.
constexpr std::uint64_t most_cpus = 8192;
/// No processor numbers more caches.
constexpr std::size_t most_caches = 32;

std::vector<std::uint64_t> cpus_in_use(const Sysroot& root)
{
    const auto online = root.text("/sys/devices/system/cpu/online");
    std::vector<std::uint64_t> cpus = numbers_of_list(online.value_or(""));
    if (!cpus.empty())
        return cpus;
    for (const std::string& name : root.list("/sys/devices/system/cpu")) {
        if (const auto number =
                name.starts_with("cpu") ? whole_number(name.substr(3)) : std::nullopt)
            cpus.push_back(*number);
    }
    cpus.resize(std::min<std::size_t>(cpus.size(), most_cpus));
    // Where the kernel has no such folders, its list of processors still shows that there is one.
    if (cpus.empty() && root.exists("/proc/cpuinfo"))
        cpus.push_back(0);
    return cpus;
}

bool packages_are_clusters(const MachineView& machine)
{
    const std::string kind = kernel_architecture(machine).value_or("");
    const bool so_numbered =
        kind.starts_with("arm") || kind == "aarch64" || kind.starts_with("riscv");
    return so_numbered && !machine.root.exists("/sys/class/dmi/id");
}

/// The size of a cache in KB, which the kernel writes as "512K".
std::optional<std::uint64_t> kilobytes_of(const std::string& text)
{
    const bool suffixed = text.ends_with('K');
    return suffixed ? whole_number(std::string_view(text).substr(0, text.size() - 1))
                    : std::nullopt;
}

/// The names of a processor's caches of a level. All processors of a package number their caches
/// alike, so one is asked for all.
std::vector<std::string> caches_of_level(const Sysroot& root, std::uint64_t cpu,
                                         std::uint64_t level)
{
    std::vector<std::string> names;
    for (const std::string& name : root.list(cpu_file(cpu, "cache"))) {
        const std::string folder = cpu_file(cpu, "cache/") + name;
        if (name.starts_with("index") && root.number(folder + "/level") == level &&
            root.text(folder + "/type") != "Instruction")
            names.push_back(name);
        if (names.size() == most_caches)
            break;
    }
    return names;
}

} // namespace

const CpuInfo& CpuFacts::info()
{
    if (!info_)
        info_ = std::make_unique<const CpuInfo>(machine_.root.read("/proc/cpuinfo").value_or(""));
    return *info_;
}

const std::optional<std::string>& CpuFacts::architecture()
{
    if (!architecture_)
        architecture_ = kernel_architecture(machine_);
    return *architecture_;
}

/// SMBIOS type 4, offset 4; empty sockets (status, offset 18h, bit 6) are left out.
const std::vector<std::string>& CpuFacts::sockets()
{
    constexpr std::uint8_t processor_type = 4;
    if (sockets_)
        return *sockets_;
    sockets_.emplace();
    const std::string table = firmware_table(machine_.root);
    for (const SmbiosStructure& socket : smbios_structures(bytes_of(table))) {
        if (socket.type() == processor_type && (socket.byte(0x18).value_or(0) & 0x40) != 0)
            sockets_->emplace_back(socket.string(0x04).value_or(""));
    }
    return *sockets_;
}

std::vector<std::uint64_t> numbers_of_list(std::string_view list)
{
    std::vector<std::uint64_t> numbers;
    for (bool more = !list.empty(); more;) {
        const std::string_view piece = list.substr(0, list.find(','));
        more = piece.size() < list.size();
        list.remove_prefix(piece.size() + (more ? 1 : 0));
        const auto hyphen = piece.find('-');
        const auto first = whole_number(piece.substr(0, hyphen));
        const auto last = hyphen == piece.npos ? first : whole_number(piece.substr(hyphen + 1));
        const bool rises = first && last && *first <= *last && *last < most_cpus &&
                           (numbers.empty() || numbers.back() < *first);
        if (!rises)
            return {};
        for (std::uint64_t number = *first; number <= *last; ++number)
            numbers.push_back(number);
    }
    return numbers;
}

std::string cpu_file(std::uint64_t cpu, const char* name)
{
    return "/sys/devices/system/cpu/cpu" + std::to_string(cpu) + "/" + name;
}

std::vector<CpuPackage> cpu_packages(const MachineView& machine)
{
    const bool one = packages_are_clusters(machine);
    std::map<std::uint64_t, std::vector<std::uint64_t>> by_number;
    for (const std::uint64_t cpu : cpus_in_use(machine.root)) {
        const auto number = machine.root.number(cpu_file(cpu, "topology/physical_package_id"));
        by_number[one ? 0 : number.value_or(0)].push_back(cpu);
    }
    const auto facts = std::make_shared<CpuFacts>(machine);
    std::vector<CpuPackage> packages;
    packages.reserve(by_number.size());
    for (auto& [number, cpus] : by_number)
        packages.push_back({machine, packages.size(), std::move(cpus), facts});
    return packages;
}

std::optional<std::uint64_t> cache_kilobytes(const CpuPackage& package, std::uint64_t level)
{
    const Sysroot& root = package.machine.root;
    const std::vector<std::string> indices = caches_of_level(root, package.cpus.front(), level);
    constexpr std::uint64_t most_kilobytes = UINT32_MAX;
    std::set<std::string> counted;
    std::optional<std::uint64_t> sum;
    for (const std::uint64_t cpu : package.cpus) {
        for (const std::string& index : indices) {
            const std::string folder = cpu_file(cpu, "cache/") + index;
            const auto sharers = root.text(folder + "/shared_cpu_map");
            if (!counted.insert(sharers.value_or(folder)).second)
                continue;
            const auto size = kilobytes_of(root.text(folder + "/size").value_or(""));
            if (size && *size <= most_kilobytes)
                sum = sum.value_or(0) + *size;
        }
    }
    return sum;
}

} // namespace ostrelum::linux_platform
