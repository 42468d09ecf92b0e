#include "platform/linux/classes/Classes.h"
#include "platform/linux/devices/BlockDevices.h"
#include "platform/linux/devices/OpticalDrives.h"
#include "platform/linux/devices/UdevDatabase.h"
#include "platform/linux/text/Text.h"

#include <array>
#include <map>
#include <memory>
#include <vector>

namespace ostrelum::linux_platform {
namespace {

/// The kernel's table of drives (/proc/sys/dev/cdrom/info): one column for each drive, under its
/// name.
class KernelTable {
public:
    explicit KernelTable(const Sysroot& root)
    {
        const std::string table = root.read("/proc/sys/dev/cdrom/info").value_or("");
        for (const std::string_view line : lines_of(table)) {
            const std::size_t colon = line.find(':');
            if (colon != line.npos)
                take(trimmed_space(line.substr(0, colon)), words_of(line.substr(colon + 1)));
        }
    }

    bool can(const std::string& drive, const std::string& row) const
    {
        const auto column = columns_.find(drive);
        const auto marks = marks_.find(row);
        return column != columns_.end() && marks != marks_.end() &&
               column->second < marks->second.size() && marks->second[column->second];
    }

private:
    void take(std::string_view row, const std::vector<std::string_view>& cells)
    {
        std::vector<bool> marks;
        for (const std::string_view cell : cells) {
            if (row == "drive name")
                columns_.try_emplace(std::string(cell), columns_.size());
            marks.push_back(cell == "1");
        }
        marks_.try_emplace(std::string(row), std::move(marks));
    }

    std::map<std::string, std::size_t> columns_;
    std::map<std::string, std::vector<bool>> marks_;
};

struct Drive {
    const MachineView& machine;
    /// The kernel's name, such as "sr0".
    std::string name;
    /// One for all drives of a query.
    std::shared_ptr<const KernelTable> kernel;

    UdevRecord udev() const
    {
        return udev_record(machine.root, "b" + device_number(machine.root, name).value_or(""));
    }
    std::optional<std::string> device_text(const char* file) const
    {
        return machine.root.text("/sys/block/" + name + "/device/" + file);
    }
};

Value drive_name(const Drive& drive)
{
    if (const auto model = drive.udev().text("ID_MODEL_ENC"))
        return *model;
    const auto vendor = drive.device_text("vendor");
    const auto model = drive.device_text("model");
    if (vendor && model)
        return *vendor + " " + *model;
    return value_of(model);
}

Value size(const Drive& drive)
{
    const auto bytes = disc_bytes(drive.machine.root, drive.name);
    return bytes ? Value(std::to_string(*bytes)) : Value();
}

/// What a drive can do, the best first: what udev says of it, the row of the kernel's own table
/// where that has one, and the name of such a drive.
struct Ability {
    std::string_view udev_key;
    const char* kernel_row;
    const char* type;
};
constexpr std::array<Ability, 12> abilities{{
    {"ID_CDROM_BD_R", "", "BD Writer"},
    {"ID_CDROM_BD_RE", "", "BD Writer"},
    {"ID_CDROM_DVD_R", "Can write DVD-R", "DVD Writer"},
    {"ID_CDROM_DVD_RW", "", "DVD Writer"},
    {"ID_CDROM_DVD_RAM", "Can write DVD-RAM", "DVD Writer"},
    {"ID_CDROM_DVD_PLUS_R", "", "DVD Writer"},
    {"ID_CDROM_DVD_PLUS_RW", "", "DVD Writer"},
    {"ID_CDROM_BD", "", "BD-ROM"},
    {"ID_CDROM_CD_R", "Can write CD-R", "CD Writer"},
    {"ID_CDROM_CD_RW", "Can write CD-RW", "CD Writer"},
    {"ID_CDROM_DVD", "Can read DVD", "DVD-ROM"},
    {"ID_CDROM", "", "CD-ROM"},
}};

Value media_type(const Drive& drive)
{
    const UdevRecord udev = drive.udev();
    const bool known_to_udev = udev.text("ID_CDROM").has_value();
    for (const Ability& ability : abilities) {
        const bool can = known_to_udev ? udev.text(ability.udev_key) == "1"
                                       : drive.kernel->can(drive.name, ability.kernel_row);
        if (can)
            return ability.type;
    }
    return "CD-ROM";
}

constexpr PropertyRow<Drive> rows[] = {
    {"MediaType", media_type},
    {"Name", drive_name},
    {"Size", size},
};

std::vector<Drive> drives(const MachineView& machine)
{
    const auto kernel = std::make_shared<const KernelTable>(machine.root);
    std::vector<Drive> drives;
    for (std::string& name : optical_drives(machine.root))
        drives.push_back({machine, std::move(name), kernel});
    return drives;
}

} // namespace

constinit const LinuxClass Win32_CDROMDrive = linux_class<rows, drives>("Win32_CDROMDrive");

} // namespace ostrelum::linux_platform
