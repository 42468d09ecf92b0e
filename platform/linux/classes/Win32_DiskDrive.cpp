#include "platform/linux/classes/Classes.h"
#include "platform/linux/devices/BlockDevices.h"
#include "platform/linux/devices/Drives.h"
#include "platform/linux/devices/UdevDatabase.h"
#include "platform/linux/text/Text.h"

#include <memory>
#include <set>
#include <vector>

namespace ostrelum::linux_platform {
namespace {

struct Drive {
    const MachineView& machine;
    /// The kernel's name, such as "sda".
    std::string name;
    /// One for all drives of a query.
    std::shared_ptr<RemovableDrives> removable;

    std::string folder() const { return "/sys/block/" + name; }
};

/// Whether a part of a device's place is `word` and then a number, as in ".../usb2/2-1/...".
bool passes(std::string_view path, std::string_view word)
{
    for (auto at = path.find(word); at != path.npos; at = path.find(word, at + 1)) {
        const auto digit = at + word.size();
        if (digit < path.size() && path[digit] >= '0' && path[digit] <= '9')
            return true;
    }
    return false;
}

/// A bridge from USB to SATA has both in its path: what the user plugs in counts. A memory card is
/// plugged in, too, also where its slot hangs on another bus.
Value interface_type(const Drive& drive)
{
    const std::string path = device_path(drive.machine.root, drive.name);
    if (passes(path, "/usb") || drive.removable->is_memory_card(drive.name))
        return "USB";
    if (passes(path, "/fw"))
        return "1394";
    if (passes(path, "/ata") || drive.name.starts_with("hd"))
        return "IDE";
    return "SCSI";
}

/// The whole model of a SATA disk stands in its world-wide identity, between the kind and the
/// serial number; the plain file cuts it to 16 characters.
std::optional<std::string> model_of_identity(const Drive& drive)
{
    constexpr std::string_view kind = "t10.ATA";
    constexpr std::size_t model_width = 40;
    const auto identity = drive.machine.root.text(drive.folder() + "/device/wwid");
    if (!identity || !identity->starts_with(kind))
        return std::nullopt;
    const auto rest = trimmed_space(std::string_view(*identity).substr(kind.size()));
    return text_or_none(rest.substr(0, model_width));
}

/// Without its coded form udev's model is the kernel's with other characters in place of the
/// unusual ones.
Value caption(const Drive& drive)
{
    const Sysroot& root = drive.machine.root;
    const UdevRecord udev = udev_record(root, "b" + device_number(root, drive.name).value_or(""));
    if (const auto model = udev.text("ID_MODEL_ENC"))
        return *model;
    if (const auto model = model_of_identity(drive))
        return *model;
    for (const char* file : {"/device/model", "/device/name"}) {
        if (const auto model = root.text(drive.folder() + file))
            return *model;
    }
    for (const char* key : {"ID_MODEL", "ID_NAME"}) {
        if (const auto model = udev.text(key))
            return *model;
    }
    return drive.name.starts_with("vd") ? Value("VirtIO Disk") : Value();
}

Value partitions(const Drive& drive)
{
    return static_cast<std::int64_t>(partitions_of(drive.machine.root, drive.name).size());
}

constexpr PropertyRow<Drive> rows[] = {
    {"Caption", caption},
    {"InterfaceType", interface_type},
    {"Partitions", partitions},
};

/// Several ways to one disk are one drive: they have the same identity.
bool is_another_way(const Sysroot& root, const std::string& name, std::set<std::string>& seen)
{
    const auto identity = root.text("/sys/block/" + name + "/device/wwid");
    return identity && !seen.insert(*identity).second;
}

/// In natural order of the kernel's names.
std::vector<Drive> drives(const MachineView& machine)
{
    std::vector<Drive> drives;
    std::set<std::string> identities;
    const auto removable = std::make_shared<RemovableDrives>(machine.root);
    for (const std::string& name : block_devices(machine.root)) {
        if (is_drive(machine.root, name) && !is_another_way(machine.root, name, identities))
            drives.push_back({machine, name, removable});
    }
    return drives;
}

} // namespace

constinit const LinuxClass Win32_DiskDrive = linux_class<rows, drives>("Win32_DiskDrive");

} // namespace ostrelum::linux_platform
