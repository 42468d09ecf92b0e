#include "platform/linux/classes/Classes.h"
#include "platform/linux/devices/CpuPackages.h"
#include "platform/linux/formats/CpuInfo.h"
#include "platform/linux/formats/Placeholder.h"
#include "platform/linux/text/Hex.h"
#include "platform/linux/text/Text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <vector>

namespace ostrelum::linux_platform {
namespace {

constexpr std::uint64_t kilo_per_mega = 1000;

/// What the kernel says of the package's first processor.
CpuRecord first_record(const CpuPackage& package)
{
    return package.facts->info().of(package.cpus.front());
}

/// The codes of the kinds that Linux runs on (CIM schema as the service extends it). Other kinds
/// have none, and 0 is x86's.
Value architecture(const CpuPackage& package)
{
    const std::string kind = package.facts->architecture().value_or("");
    if (kind.size() == 4 && kind.starts_with('i') && kind.ends_with("86"))
        return 0;
    constexpr int unknown_architecture = 65535;
    constexpr std::array<std::pair<std::string_view, int>, 6> kinds{
        {{"x86_64", 9}, {"aarch64", 12}, {"arm", 5}, {"ppc", 3}, {"mips", 1}, {"ia64", 6}}};
    for (const auto& [name, code] : kinds) {
        if (kind.starts_with(name))
            return code;
    }
    return unknown_architecture;
}

/// "Intel64 Family 6 Model 45 Stepping 7".
std::optional<std::string> x86_caption(const CpuRecord& record, bool wide)
{
    const auto family = record.text({"cpu family"});
    const auto model = record.text({"model"});
    const auto stepping = record.text({"stepping"});
    if (!family || !model || !stepping)
        return std::nullopt;
    const std::string vendor = record.text({"vendor_id"}).value_or("");
    const char* kind = vendor == "GenuineIntel"                               ? "Intel64"
                       : vendor == "AuthenticAMD" || vendor == "HygonGenuine" ? "AMD64"
                                                                              : "x64";
    return std::string(wide ? kind : "x86") + " Family " + *family + " Model " + *model +
           " Stepping " + *stepping;
}

/// "ARMv8 (64-bit) Family 8 Model D03 Revision 4".
std::optional<std::string> arm_caption(const CpuRecord& record, bool wide)
{
    const auto family = record.text({"CPU architecture"});
    const auto part = record.number("CPU part");
    const auto revision = record.text({"CPU revision"});
    if (!family || !part || !revision)
        return std::nullopt;
    return "ARMv" + *family + (wide ? " (64-bit)" : " (32-bit)") + " Family " + *family +
           " Model " + upper_hex(*part) + " Revision " + *revision;
}

Value caption(const CpuPackage& package)
{
    const CpuRecord record = first_record(package);
    const std::string kind = package.facts->architecture().value_or("");
    if (const auto text = x86_caption(record, kind == "x86_64"))
        return *text;
    return value_of(arm_caption(record, kind == "aarch64"));
}

/// Mean in MHz; nothing if no clock is known.
template <class Processor, class Clock>
std::optional<double> mean(const std::vector<Processor>& processors, Clock clock)
{
    double sum = 0;
    int count = 0;
    for (const Processor& processor : processors) {
        if (const std::optional<double> megahertz = clock(processor)) {
            sum += *megahertz;
            ++count;
        }
    }
    return count > 0 ? std::optional(sum / count) : std::nullopt;
}

std::optional<double> clock_of_cpuinfo(const CpuPackage& package)
{
    const std::vector<CpuRecord> records = package.facts->info().of_all(package.cpus);
    return mean(records, [](const CpuRecord& record) { return record.megahertz(); });
}

Value whole_megahertz(const std::optional<double>& megahertz)
{
    return megahertz && *megahertz < UINT32_MAX ? Value(std::llround(*megahertz)) : Value();
}

Value current_clock(const CpuPackage& package)
{
    const auto scaled = mean(package.cpus, [&](std::uint64_t cpu) -> std::optional<double> {
        const auto kilohertz =
            package.machine.root.number(cpu_file(cpu, "cpufreq/scaling_cur_freq"));
        return kilohertz ? std::optional(static_cast<double>(*kilohertz) / kilo_per_mega)
                         : std::nullopt;
    });
    return whole_megahertz(scaled ? scaled : clock_of_cpuinfo(package));
}

/// The kinds of core of an ARM package, in the order of its processors: "Cortex-A53 + Cortex-A73".
std::optional<std::string> arm_model_name(const CpuPackage& package)
{
    std::set<std::pair<std::uint64_t, std::uint64_t>> seen;
    std::optional<std::string> names;
    for (const CpuRecord& record : package.facts->info().of_all(package.cpus)) {
        const auto implementer = record.number("CPU implementer");
        const auto part = implementer ? record.number("CPU part") : std::nullopt;
        // A record without them is of another kind of processor, and so are the rest.
        if (!part)
            return std::nullopt;
        const auto name =
            seen.emplace(*implementer, *part).second ? arm_name(*implementer, *part) : std::nullopt;
        if (name)
            names = names ? *names + " + " + *name : *name;
    }
    return names;
}

/// Where 32-bit ARM kernels have a "model name", it is that of the instruction set.
std::optional<std::string> model_name(const CpuPackage& package)
{
    if (auto name = arm_model_name(package))
        return name;
    if (auto name = first_record(package).text({"model name", "Model Name", "Model", "cpu"}))
        return name;
    return package.machine.root.text("/proc/device-tree/cpus/cpu@0/compatible");
}

/// The figure of the package's fastest core: cores differ, and the first is often a slow one. All
/// have the file or none.
std::optional<std::uint64_t> fastest(const CpuPackage& package, const char* file)
{
    std::optional<std::uint64_t> highest;
    for (const std::uint64_t cpu : package.cpus) {
        const auto clock = package.machine.root.number(cpu_file(cpu, file));
        if (!clock)
            break;
        highest = std::max(highest.value_or(0), *clock);
    }
    return highest;
}

/// The rated clock: what the processor is sold with, not what it may reach for a moment.
Value max_clock(const CpuPackage& package)
{
    if (const auto kilohertz = fastest(package, "cpufreq/base_frequency"))
        return *kilohertz / kilo_per_mega;
    if (const auto megahertz = fastest(package, "acpi_cppc/nominal_freq").value_or(0))
        return megahertz;
    if (const auto megahertz = megahertz_in_name(model_name(package).value_or("")))
        return *megahertz;
    for (const char* file : {"cpufreq/bios_limit", "cpufreq/cpuinfo_max_freq"}) {
        if (const auto kilohertz = fastest(package, file))
            return *kilohertz / kilo_per_mega;
    }
    const auto rated = first_record(package).rated_megahertz();
    return whole_megahertz(rated ? rated : clock_of_cpuinfo(package));
}

Value l2_cache(const CpuPackage& package)
{
    return value_of(cache_kilobytes(package, 2));
}
Value l3_cache(const CpuPackage& package)
{
    return value_of(cache_kilobytes(package, 3));
}

Value manufacturer(const CpuPackage& package)
{
    const CpuRecord record = first_record(package);
    if (const auto vendor = record.text({"vendor_id"}))
        return *vendor;
    const auto implementer = record.number("CPU implementer");
    return implementer ? value_of(arm_maker(*implementer)) : Value();
}

Value name(const CpuPackage& package)
{
    return value_of(model_name(package));
}

/// The label of the package's socket in the firmware's table: sockets in their order.
Value socket(const CpuPackage& package)
{
    const auto& labels = package.facts->sockets();
    return package.place < labels.size() ? value_of(meaningful_text(labels[package.place]))
                                         : Value();
}

constexpr PropertyRow<CpuPackage> rows[] = {
    {"Architecture", architecture},
    {"Caption", caption, Unknown::EmptyText},
    {"CurrentClockSpeed", current_clock, Unknown::Zero},
    {"L2CacheSize", l2_cache, Unknown::Zero},
    {"L3CacheSize", l3_cache, Unknown::Zero},
    {"Manufacturer", manufacturer, Unknown::EmptyText},
    {"MaxClockSpeed", max_clock, Unknown::Zero},
    {"Name", name, Unknown::EmptyText},
    {"SocketDesignation", socket, Unknown::EmptyText},
};

} // namespace

constinit const LinuxClass Win32_Processor = linux_class<rows, cpu_packages>("Win32_Processor");

} // namespace ostrelum::linux_platform
