#include "platform/linux/devices/GraphicsDriver.h"

#include "platform/linux/formats/BuildDate.h"
#include "platform/linux/text/Text.h"

namespace ostrelum::linux_platform {
namespace {

constexpr std::string_view nvidia = "nvidia";

std::string last_part(const std::string& path)
{
    return path.substr(path.rfind('/') + 1);
}

/// The link to the driver. What shows on a virtio device is not the driver of its PCI side.
std::string driver_link(const Sysroot& root, const GraphicsCard& card)
{
    const std::string folder = card.folder();
    if (last_part(root.link(folder + "/driver").value_or("")) == "virtio-pci") {
        for (const std::string& name : root.list(folder)) {
            if (name.starts_with("virtio"))
                return folder + "/" + name + "/driver";
        }
    }
    return folder + "/driver";
}

/// The sum over the parts of the card, "tile0" and so on.
std::optional<std::uint64_t> memory_of_tiles(const Sysroot& root, const std::string& folder)
{
    std::optional<std::uint64_t> sum;
    for (const std::string& name : root.list(folder)) {
        if (!name.starts_with("tile"))
            continue;
        const auto bytes = root.number(folder + "/" + name + "/physical_vram_size_bytes");
        const auto more = bytes ? sum_of(sum.value_or(0), *bytes) : sum;
        if (bytes && !more)
            return std::nullopt;
        sum = more;
    }
    return sum;
}

} // namespace

std::optional<std::string> graphics_driver(const Sysroot& root, const GraphicsCard& card)
{
    const std::string link = driver_link(root, card);
    const auto module = root.link(link + "/module");
    const auto driver = module ? module : root.link(link);
    return driver ? std::optional(last_part(*driver)) : std::nullopt;
}

std::optional<std::string> graphics_driver_version(const Sysroot& root, const std::string& driver)
{
    const auto own = root.text("/sys/module/" + driver + "/version");
    return own ? own : root.text("/proc/sys/kernel/osrelease");
}

std::optional<std::chrono::year_month_day> graphics_driver_date(const Sysroot& root,
                                                                const std::string& driver)
{
    // This driver does not come with the kernel, so it is not as old as the kernel.
    if (driver == nvidia)
        return build_date(root.text("/proc/driver/nvidia/version").value_or(""));
    const std::string line = root.text("/proc/version").value_or("");
    // In front of the build's number stand the compiler's versions.
    return build_date(std::string_view(line).substr(std::min(line.find(" #"), line.size())));
}

std::optional<std::uint64_t> graphics_memory(const MachineView& machine, const GraphicsCard& card)
{
    const std::string folder = card.folder();
    if (const auto bytes = machine.root.number(folder + "/mem_info_vram_total"))
        return bytes;
    if (const auto bytes = memory_of_tiles(machine.root, folder))
        return bytes;
    if (const auto bytes = machine.root.number("/sys/class/drm/" + card.drm + "/lmem_total_bytes"))
        return bytes;
    const bool asleep = machine.root.text(folder + "/power/runtime_status") == "suspended";
    if (graphics_driver(machine.root, card) != nvidia || asleep)
        return std::nullopt;
    return machine.system_calls->graphics_memory(card.slot);
}

} // namespace ostrelum::linux_platform
