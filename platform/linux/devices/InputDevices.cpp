#include "platform/linux/devices/InputDevices.h"

#include "platform/linux/devices/DeviceNames.h"
#include "platform/linux/devices/UdevDatabase.h"
#include "platform/linux/formats/MouseButtons.h"
#include "platform/linux/text/Text.h"

#include <algorithm>
#include <array>
#include <map>
#include <string_view>

namespace ostrelum::linux_platform {
namespace {

constexpr std::string_view class_folder = "/sys/class/input/";

/// The folder of the device that an input device is a part of, by the link that leads to the
/// latter. A part of a USB device stands under an interface, "1-3:1.0", which stands under the
/// device, "1-3". What a Bluetooth adapter has found is no part of the adapter.
std::string hardware_of(std::string_view link)
{
    const std::size_t devices = link.find("devices/");
    std::string path = "/sys/" + std::string(link.substr(std::min(devices, link.size())));
    path.resize(std::min(path.rfind("/input/"), path.size()));
    if (path.find("/bluetooth/") != std::string::npos)
        return path;
    for (std::size_t end = path.rfind('/'); end != std::string::npos && end > 0;
         end = path.rfind('/', end - 1)) {
        const std::size_t start = path.rfind('/', end - 1) + 1;
        const std::string interface_start = path.substr(start, end - start) + ":";
        if (path.compare(end + 1, interface_start.size(), interface_start) == 0)
            return path.substr(0, end);
    }
    return path;
}

InputDevice capabilities(const Sysroot& root, const std::string& folder)
{
    const auto text = [&](const char* file) { return root.text(folder + file).value_or(""); };
    return {text("/capabilities/key"), text("/capabilities/rel"), text("/capabilities/abs"),
            text("/properties")};
}

/// What an input device is; several at once, or none.
struct Kinds {
    bool keyboard = false;
    bool pointer = false;
    bool touchpad = false;

    bool has(InputKind kind) const { return kind == InputKind::Keyboard ? keyboard : pointer; }
};

/// Recognises devices by what they can do, where udev does not run.
class ByCapability {
public:
    ByCapability(const Sysroot& root, const std::vector<std::string>& names) : root_(root)
    {
        std::vector<InputDevice> devices;
        devices.reserve(names.size());
        for (const std::string& name : names)
            devices.push_back(capabilities(root, std::string(class_folder) + name));
        word_bits_ = kernel_word_bits(devices);
    }

    Kinds kinds(const std::string& folder) const
    {
        const InputDevice device = capabilities(root_, folder);
        return {.keyboard = is_keyboard(device, word_bits_),
                .pointer = is_pointer(device, word_bits_),
                .touchpad = is_touchpad(device, word_bits_)};
    }

private:
    const Sysroot& root_;
    unsigned word_bits_ = 0;
};

Kinds kinds_by_udev(const UdevRecord& udev)
{
    constexpr std::array pointers = {"ID_INPUT_MOUSE", "ID_INPUT_TOUCHPAD",
                                     "ID_INPUT_POINTINGSTICK", "ID_INPUT_TRACKBALL"};
    const auto has = [&](const char* key) { return udev.text(key) == "1"; };
    return {.keyboard = has("ID_INPUT_KEYBOARD"),
            .pointer = std::ranges::any_of(pointers, has),
            .touchpad = has("ID_INPUT_TOUCHPAD")};
}

/// The names of the kernel's mouse drivers: "SynPS/2 Synaptics TouchPad", in which "Generic" stands
/// for an unknown maker.
std::optional<std::string> maker_in_ps2_name(const std::string& name)
{
    const auto words = words_of(name);
    if (words.size() < 3 || words[0].find("PS/2") == std::string_view::npos ||
        words[1] == "Generic")
        return std::nullopt;
    return std::string(words[1]);
}

struct Part {
    InputNode node;
    Kinds kinds;
};

/// All keyboards and pointers in the order in which the kernel found them. Programs that remap keys
/// make devices of their own, under a folder that is left out.
std::vector<Part> all_parts(const Sysroot& root)
{
    std::vector<std::string> names = root.list(std::string(class_folder));
    std::erase_if(names, [](const std::string& name) { return !name.starts_with("input"); });
    std::optional<ByCapability> by_capability;
    std::vector<Part> parts;
    for (const std::string& name : names) {
        const std::string folder = std::string(class_folder) + name;
        const std::string link = root.link(folder).value_or("");
        if (link.find("/virtual/input/") != std::string::npos)
            continue;
        const UdevRecord udev = udev_record(root, "+input:" + name);
        const bool known_to_udev = udev.text("ID_INPUT").has_value();
        if (!known_to_udev && !by_capability)
            by_capability.emplace(root, names);
        const Kinds kinds = known_to_udev ? kinds_by_udev(udev) : by_capability->kinds(folder);
        if (kinds.keyboard || kinds.pointer)
            parts.push_back({{folder, hardware_of(link)}, kinds});
    }
    return parts;
}

/// A piece of hardware as one of a kind.
struct Hardware {
    /// Its foremost part of that kind. A touch pad has a part for mice besides its own, often
    /// before it.
    const Part* foremost;
    /// 0 for hardware of that kind alone; 1 for a keyboard with a wheel or a mouse with macros, if
    /// its first part is of that kind; 2 if that is of the other.
    int rank;
};

/// In the order of the foremost parts.
std::vector<Hardware> one_for_each_hardware(const std::vector<Part>& parts, InputKind kind)
{
    const InputKind other = kind == InputKind::Keyboard ? InputKind::Pointer : InputKind::Keyboard;
    std::map<std::string_view, Hardware> all;
    std::vector<std::string_view> order;
    for (const Part& part : parts) {
        const bool wanted = part.kinds.has(kind);
        const auto [seen, is_new] = all.try_emplace(part.node.hardware, Hardware{nullptr, 0});
        Hardware& hardware = seen->second;
        if (part.kinds.has(other) && hardware.rank == 0)
            hardware.rank = wanted || !is_new ? 1 : 2;
        if (!wanted)
            continue;
        if (!hardware.foremost)
            order.push_back(seen->first);
        if (!hardware.foremost || (part.kinds.touchpad && !hardware.foremost->kinds.touchpad))
            hardware.foremost = &part;
    }
    std::vector<Hardware> ordered;
    for (const std::string_view path : order)
        ordered.push_back(all.at(path));
    return ordered;
}

} // namespace

std::vector<InputNode> input_nodes(const Sysroot& root, InputKind kind)
{
    const std::vector<Part> parts = all_parts(root);
    auto all = one_for_each_hardware(parts, kind);
    std::ranges::stable_sort(all, {}, &Hardware::rank);
    std::vector<InputNode> nodes;
    for (const Hardware& hardware : all)
        nodes.push_back(hardware.foremost->node);
    return nodes;
}

std::optional<std::uint16_t> input_bus(const Sysroot& root, const InputNode& node)
{
    const auto number = whole_number(root.text(node.folder + "/id/bustype").value_or(""), 16);
    return number ? std::optional(static_cast<std::uint16_t>(*number)) : std::nullopt;
}

std::optional<std::string> input_maker(const MachineView& machine, const InputNode& node)
{
    const Sysroot& root = machine.root;
    const auto bus = input_bus(root, node);
    if (bus == BusI8042)
        return maker_in_ps2_name(root.text(node.folder + "/name").value_or(""));
    if (bus == BusUsb) {
        if (auto maker = root.text(node.hardware + "/manufacturer"))
            return maker;
    }
    if (bus != BusUsb && bus != BusI2c && bus != BusBluetooth)
        return std::nullopt;
    const auto vendor = whole_number(root.text(node.folder + "/id/vendor").value_or(""), 16);
    return vendor ? usb_vendor(machine, static_cast<std::uint16_t>(*vendor)) : std::nullopt;
}

} // namespace ostrelum::linux_platform
