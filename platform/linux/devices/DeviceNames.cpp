#include "platform/linux/devices/DeviceNames.h"

#include "platform/linux/devices/UdevDatabase.h"
#include "platform/linux/formats/Placeholder.h"
#include "platform/linux/text/Hex.h"
#include "platform/linux/text/Text.h"

#include <algorithm>
#include <span>

namespace ostrelum::linux_platform {
namespace {

constexpr const char* vendor_key = "ID_VENDOR_FROM_DATABASE";
constexpr const char* model_key = "ID_MODEL_FROM_DATABASE";

/// Makers of monitors by the letters of UEFI's PNP registry, for machines without a hardware
/// database. Sorted by letters.
struct MonitorMaker {
    std::string_view code;
    const char* name;
};
constexpr MonitorMaker monitor_makers[] = {
    {"ACR", "Acer"},       {"AOC", "AOC"},       {"APP", "Apple"},      {"AUO", "AU Optronics"},
    {"AUS", "ASUS"},       {"BNQ", "BenQ"},      {"BOE", "BOE"},        {"CMN", "Innolux"},
    {"CMO", "Chi Mei"},    {"DEL", "Dell"},      {"ENC", "EIZO"},       {"FUS", "Fujitsu"},
    {"GBT", "Gigabyte"},   {"GSM", "LG"},        {"HPN", "HP"},         {"HSD", "HannStar"},
    {"HWP", "HP"},         {"IVM", "iiyama"},    {"IVO", "InfoVision"}, {"LEN", "Lenovo"},
    {"LGD", "LG Display"}, {"MED", "Medion"},    {"MEI", "Panasonic"},  {"MSI", "MSI"},
    {"NEC", "NEC"},        {"PHL", "Philips"},   {"RHT", "Red Hat"},    {"SAM", "Samsung"},
    {"SDC", "Samsung"},    {"SHP", "Sharp"},     {"SNY", "Sony"},       {"TSB", "Toshiba"},
    {"VIZ", "VIZIO"},      {"VSC", "ViewSonic"}, {"XMI", "Xiaomi"},
};
static_assert(std::ranges::is_sorted(monitor_makers, {}, &MonitorMaker::code));

/// Makers of monitors that use letters which are registered for somebody who makes none.
constexpr MonitorMaker unregistered_makers[] = {
    {"ACI", "ASUS"},
    {"CPT", "Chunghwa"},
    {"CSO", "CSOT"},
    {"TMX", "Tianma"},
};
/// Samsung's panels bear the letters that are Seiko Epson's, whose projectors bear them too.
constexpr MonitorMaker unregistered_panel_makers[] = {{"SEC", "Samsung"}};

const char* maker_in(std::span<const MonitorMaker> makers, std::string_view code)
{
    const auto row = std::ranges::find(makers, code, &MonitorMaker::code);
    return row == makers.end() ? nullptr : row->name;
}

/// A number that sysfs writes as "0x10de".
std::optional<unsigned> number_in(const Sysroot& root, const std::string& path)
{
    const auto text = root.text(path);
    const auto number =
        text && text->starts_with("0x") ? whole_number(text->substr(2), 16) : std::nullopt;
    return number ? std::optional(static_cast<unsigned>(*number)) : std::nullopt;
}

std::optional<std::string> database_name(const MachineView& machine, const std::string& alias,
                                         const char* key)
{
    const auto name = machine.system_calls->hardware_name(alias, key);
    return name ? meaningful_text(*name) : std::nullopt;
}

} // namespace

PciNames pci_names(const MachineView& machine, const std::string& slot)
{
    const Sysroot& root = machine.root;
    const UdevRecord udev = udev_record(root, "+pci:" + slot);
    PciNames names = {udev.text(vendor_key), udev.text(model_key)};
    const std::string folder = "/sys/bus/pci/devices/" + slot;
    const auto vendor = number_in(root, folder + "/vendor");
    const auto device = number_in(root, folder + "/device");
    if ((names.vendor && names.model) || !vendor || !device)
        return names;
    const std::string alias = "pci:v" + upper_hex(*vendor, 8);
    if (!names.vendor)
        names.vendor = database_name(machine, alias, vendor_key);
    if (!names.model)
        names.model = database_name(machine, alias + "d" + upper_hex(*device, 8), model_key);
    return names;
}

std::optional<std::string> pci_code(const Sysroot& root, const std::string& slot)
{
    const std::string folder = "/sys/bus/pci/devices/" + slot;
    const auto vendor = number_in(root, folder + "/vendor");
    const auto device = number_in(root, folder + "/device");
    if (!vendor || !device)
        return std::nullopt;
    return upper_hex(*vendor, 4) + ":" + upper_hex(*device, 4);
}

std::optional<std::string> usb_vendor(const MachineView& machine, std::uint16_t vendor)
{
    return database_name(machine, "usb:v" + upper_hex(vendor, 4), vendor_key);
}

std::string monitor_maker(const MachineView& machine, const std::string& code, bool panel)
{
    if (const char* name = maker_in(unregistered_makers, code))
        return name;
    if (const char* name = panel ? maker_in(unregistered_panel_makers, code) : nullptr)
        return name;
    if (const auto name = database_name(machine, "acpi:" + code + ":", vendor_key))
        return *name;
    const char* name = maker_in(monitor_makers, code);
    return name != nullptr ? name : code;
}

std::string_view bracketed_name(std::string_view text)
{
    const std::size_t open = text.find('[');
    const std::size_t close = text.find(']', open);
    return close == std::string_view::npos ? text : text.substr(open + 1, close - open - 1);
}

} // namespace ostrelum::linux_platform
