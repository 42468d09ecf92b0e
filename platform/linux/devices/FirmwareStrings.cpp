#include "platform/linux/devices/FirmwareStrings.h"

#include "platform/linux/devices/FirmwareTable.h"
#include "platform/linux/devices/UdevDatabase.h"
#include "platform/linux/formats/Placeholder.h"
#include "platform/linux/formats/Smbios.h"
#include "platform/linux/text/Text.h"

#include <algorithm>
#include <array>

namespace ostrelum::linux_platform {
namespace {

/// Where a text stands. Empty names: not there.
struct FirmwareSource {
    FirmwareText wanted;
    /// In /sys/class/dmi/id.
    const char* id_file;
    /// In udev's record of the firmware.
    const char* udev_key;
    /// DSP0134 chapter 7: type of the structure, and offset of the string's number in it.
    std::uint8_t smbios_type;
    std::uint8_t smbios_offset;
    /// In /proc/device-tree; of "compatible" the maker, which stands before the comma.
    const char* device_tree_file;
    /// In /proc/sysinfo of IBM Z.
    const char* sysinfo_label;
};

constexpr FirmwareSource firmware_sources[] = {
    {FirmwareText::BiosVendor, "bios_vendor", "", 0, 0x04, "", ""},
    {FirmwareText::BiosVersion, "bios_version", "", 0, 0x05, "chosen/u-boot,version", ""},
    {FirmwareText::BiosDate, "bios_date", "", 0, 0x08, "", ""},
    {FirmwareText::BoardVendor, "board_vendor", "", 2, 0x04, "compatible", "Manufacturer"},
    {FirmwareText::BoardName, "board_name", "", 2, 0x05, "model", "Model"},
    {FirmwareText::SystemVendor, "sys_vendor", "ID_VENDOR", 1, 0x04, "compatible", "Manufacturer"},
    {FirmwareText::SystemName, "product_name", "ID_MODEL", 1, 0x05, "model", "Model"},
    {FirmwareText::SystemSerial, "product_serial", "", 1, 0x07, "serial-number", ""},
};

const FirmwareSource& source_of(FirmwareText wanted)
{
    return *std::ranges::find(firmware_sources, wanted, &FirmwareSource::wanted);
}

std::string id_path(const FirmwareSource& source)
{
    return std::string("/sys/class/dmi/id/") + source.id_file;
}

using Found = std::optional<std::string>;

Found from_id_file(const Sysroot& root, const FirmwareSource& source)
{
    return root.text(id_path(source));
}

Found from_udev(const Sysroot& root, const FirmwareSource& source)
{
    return udev_record(root, "+dmi:id").text(source.udev_key);
}

Found from_table(const Sysroot& root, const FirmwareSource& source)
{
    const std::string table = firmware_table(root);
    for (const SmbiosStructure& structure : smbios_structures(bytes_of(table))) {
        if (structure.type() == source.smbios_type)
            return Found(structure.string(source.smbios_offset));
    }
    return std::nullopt;
}

Found from_device_tree(const Sysroot& root, const FirmwareSource& source)
{
    const std::string_view file = source.device_tree_file;
    auto text = root.text("/proc/device-tree/" + std::string(file));
    if (!text || file != "compatible")
        return text;
    const std::size_t comma = text->find(',');
    return comma == std::string::npos ? std::nullopt : Found(text->substr(0, comma));
}

Found from_sysinfo(const Sysroot& root, const FirmwareSource& source)
{
    const std::string sysinfo = root.read("/proc/sysinfo").value_or("");
    return Found(value_behind(sysinfo, source.sysinfo_label, ':'));
}

constexpr std::array readers = {from_id_file, from_udev, from_table, from_device_tree,
                                from_sysinfo};

} // namespace

std::optional<std::string> FirmwareStrings::text(FirmwareText wanted) const
{
    const FirmwareSource& source = source_of(wanted);
    const auto meaningful =
        wanted == FirmwareText::SystemSerial ? meaningful_serial : meaningful_text;
    for (const auto reader : readers) {
        const Found raw = reader(*root_, source);
        if (auto found = raw ? meaningful(*raw) : std::nullopt)
            return found;
    }
    return std::nullopt;
}

bool FirmwareStrings::has(FirmwareText wanted) const
{
    return root_->exists(id_path(source_of(wanted))) || text(wanted);
}

} // namespace ostrelum::linux_platform
