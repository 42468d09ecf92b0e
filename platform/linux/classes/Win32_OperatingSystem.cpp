#include "platform/linux/accounts/Owner.h"
#include "platform/linux/classes/Classes.h"
#include "platform/linux/formats/CimDateTime.h"
#include "platform/linux/formats/ConfigText.h"
#include "platform/linux/formats/LocaleIds.h"
#include "platform/linux/formats/MemoryInfo.h"
#include "platform/linux/formats/Mounts.h"
#include "platform/linux/os/Distribution.h"
#include "platform/linux/os/KernelRelease.h"
#include "platform/linux/os/Processes.h"
#include "platform/linux/text/Text.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace ostrelum::linux_platform {
namespace {

/// The running system.
class System {
public:
    explicit System(const MachineView& machine) : machine_(&machine) {}

    const MachineView& machine() const { return *machine_; }
    const Sysroot& root() const { return machine_->root; }

    /// Read when it is first asked for: two properties speak of one moment.
    const MemoryInfo& memory() const
    {
        if (!memory_)
            memory_ = parse_meminfo(root().read("/proc/meminfo").value_or(""));
        return *memory_;
    }

private:
    const MachineView* machine_;
    mutable std::optional<MemoryInfo> memory_;
};

Value caption(const System& system)
{
    return Distribution(system.root()).name().value_or("Linux");
}

/// 64-bit numbers are text. Null where the machine's memory is not known, and beyond 64 bits.
Value sum(std::optional<std::uint64_t> memory, std::optional<std::uint64_t> swap)
{
    const auto both = memory ? sum_of(*memory, swap.value_or(0)) : std::nullopt;
    return both ? Value(std::to_string(*both)) : Value();
}

Value free_physical_memory(const System& system)
{
    return sum(system.memory().available, std::nullopt);
}

Value free_virtual_memory(const System& system)
{
    return sum(system.memory().available, system.memory().swap_free);
}

Value total_virtual_memory(const System& system)
{
    return sum(system.memory().total, system.memory().swap_total);
}

/// A system that lies in memory or over another one was not installed.
bool is_installed(const Sysroot& root)
{
    std::string type;
    for (const Mount& mount : parse_mounts(root.read("/proc/self/mountinfo").value_or(""))) {
        if (mount.target == "/")
            type = mount.type;
    }
    return type != "overlay" && type != "tmpfs" && type != "ramfs" && type != "squashfs" &&
           type != "aufs";
}

/// When the oldest of the files that an installation makes was created. Some file systems give
/// 1970: only a year from 2000 on counts.
Value install_date(const System& system)
{
    constexpr std::int64_t year_2000 = 946684800;
    if (!is_installed(system.root()))
        return {};
    std::optional<std::int64_t> oldest;
    for (const char* path : {"/", "/lost+found", "/etc/machine-id"}) {
        const auto birth = system.machine().system_calls->birth_time(path);
        if (birth && *birth >= year_2000 && (!oldest || *birth < *oldest))
            oldest = birth;
    }
    return oldest
               ? value_of(cim_datetime(*oldest, system.machine().system_calls->utc_offset(*oldest)))
               : Value();
}

/// Linux does not favour one use of memory over the other.
Value large_system_cache(const System&)
{
    return {};
}

Value number_of_processes(const System& system)
{
    return value_of(process_count(system.root(), system.machine().processes));
}

Value architecture(const System& system)
{
    const auto kind = kernel_architecture(system.machine());
    if (!kind)
        return {};
    if (*kind == "aarch64")
        return "ARM 64-bit Processor";
    // A 64-bit kernel may carry a system of 32-bit programs alone.
    const bool loader32 = system.root().exists("/lib/ld-linux.so.2");
    if (*kind == "x86_64" && loader32 && !system.root().exists("/lib64/ld-linux-x86-64.so.2"))
        return "32-bit";
    const bool wide = kind->find("64") != std::string::npos || *kind == "s390x";
    return wide ? "64-bit" : "32-bit";
}

Value language(const System& system)
{
    for (const char* path : {"/etc/locale.conf", "/etc/default/locale"}) {
        if (const auto locale = assigned(system.root().read(path).value_or(""), "LANG"))
            return value_of(locale_id(*locale));
    }
    const auto locale = system.machine().system_calls->variable("LANG");
    return locale ? value_of(locale_id(*locale)) : Value();
}

Value registered_user(const System& system)
{
    return value_of(owner_of(system.root()));
}

Value serial_number(const System& system)
{
    const auto id = system.root().text("/etc/machine-id");
    return id ? value_of(system.machine().identities.installation(*id)) : Value();
}

Value service_pack(const System& system)
{
    return Distribution(system.root()).point_release();
}

Value version(const System& system)
{
    const auto release = system.root().text("/proc/sys/kernel/osrelease");
    return release ? value_of(kernel_version_text(*release)) : Value();
}

/// Where the page would take 0, or an empty text, for the system's own word, unknown is null: 0
/// says that memory is favoured for programs, and an empty version shows as ", ".
constexpr PropertyRow<System> rows[] = {
    {"Caption", caption},
    {"FreePhysicalMemory", free_physical_memory, Unknown::Zero},
    {"FreeVirtualMemory", free_virtual_memory, Unknown::Zero},
    {"InstallDate", install_date, Unknown::EmptyText},
    {"LargeSystemCache", large_system_cache},
    {"NumberOfProcesses", number_of_processes, Unknown::Zero},
    {"OSArchitecture", architecture, Unknown::EmptyText},
    {"OSLanguage", language, Unknown::Zero},
    {"RegisteredUser", registered_user, Unknown::EmptyText},
    {"SerialNumber", serial_number, Unknown::EmptyText},
    {"ServicePackMajorVersion", service_pack},
    {"TotalVirtualMemorySize", total_virtual_memory, Unknown::Zero},
    {"Version", version},
};

/// One, wherever there is a kernel or a distribution, as there is on the machine that this runs on.
std::vector<System> systems(const MachineView& machine)
{
    if (machine.root.is_live())
        return {System(machine)};
    for (const char* path : {"/proc/sys/kernel/osrelease", "/proc/meminfo", "/etc/os-release",
                             "/usr/lib/os-release"}) {
        if (machine.root.exists(path))
            return {System(machine)};
    }
    return {};
}

} // namespace

constinit const LinuxClass Win32_OperatingSystem =
    linux_class<rows, systems>("Win32_OperatingSystem");

} // namespace ostrelum::linux_platform
