#include "platform/linux/classes/Classes.h"
#include "platform/linux/devices/DeviceNames.h"
#include "platform/linux/devices/UdevDatabase.h"
#include "platform/linux/formats/Placeholder.h"
#include "platform/linux/text/Text.h"
#include "sources/Ascii.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <memory>
#include <vector>

namespace ostrelum::linux_platform {
namespace {

constexpr std::string_view class_folder = "/sys/class/sound/";

/// What the sound system calls its cards, by number: " 0 [PCH   ]: HDA-Intel - HDA Intel PCH".
using CardNames = std::map<std::string, std::string>;

/// A codec of an HD-audio card, as Windows lists them; a card of another kind is one device.
struct SoundDevice {
    const MachineView& machine;
    /// The kernel's names, such as "card0" and "hwC0D2"; no codec for a card as a whole.
    std::string card;
    std::string codec;
    /// One for all devices of a query.
    std::shared_ptr<const CardNames> card_names;

    std::optional<std::string> codec_text(const char* file) const
    {
        const auto line = machine.root.text(std::string(class_folder) + codec + "/" + file);
        return line ? meaningful_text(*line) : std::nullopt;
    }
};

CardNames card_names(const Sysroot& root)
{
    CardNames names;
    const std::string table = root.read("/proc/asound/cards").value_or("");
    for (const std::string_view line : lines_of(table)) {
        const auto words = words_of(line);
        const std::size_t dash = line.find(" - ");
        if (words.size() > 1 && words[1].starts_with('[') && dash != line.npos)
            names.try_emplace(std::string(words[0]),
                              text_or_none(line.substr(dash + 3)).value_or(""));
    }
    return names;
}

/// The number of a card in its name, "card0".
std::string number_of(const std::string& card)
{
    return card.substr(std::string_view("card").size());
}

std::optional<std::string> card_name(const SoundDevice& device)
{
    const auto name = device.card_names->find(number_of(device.card));
    if (name == device.card_names->end())
        return device.machine.root.text(std::string(class_folder) + device.card + "/id");
    return name->second.empty() ? std::nullopt : std::optional(name->second);
}

std::optional<std::string> card_maker(const SoundDevice& device)
{
    const Sysroot& root = device.machine.root;
    const UdevRecord udev = udev_record(root, "+sound:" + device.card);
    for (const char* key : {"ID_VENDOR_FROM_DATABASE", "ID_VENDOR_ENC"}) {
        if (auto maker = udev.text(key))
            return maker;
    }
    const std::string folder = std::string(class_folder) + device.card;
    // The sound card of a USB device is one of its interfaces.
    if (auto maker = root.text(folder + "/device/../manufacturer"))
        return maker;
    std::string path = root.link(folder).value_or("");
    path.resize(std::min(path.rfind("/sound/"), path.size()));
    return pci_names(device.machine, path.substr(path.rfind('/') + 1)).vendor;
}

Value manufacturer(const SoundDevice& device)
{
    return value_of(device.codec.empty() ? card_maker(device) : device.codec_text("vendor_name"));
}

Value device_name(const SoundDevice& device)
{
    if (device.codec.empty())
        return value_of(card_name(device));
    const auto vendor = device.codec_text("vendor_name");
    const auto chip = device.codec_text("chip_name");
    return vendor && chip ? *vendor + " " + *chip : value_of(chip ? chip : vendor);
}

constexpr PropertyRow<SoundDevice> rows[] = {
    {"Manufacturer", manufacturer},
    {"Name", device_name},
};

/// Cards that programs make play into nothing or back to programs.
bool is_made(std::string_view link)
{
    constexpr std::string_view places[] = {"/virtual/", "/snd_aloop.", "/snd_dummy."};
    return std::ranges::any_of(
        places, [&](std::string_view place) { return link.find(place) != link.npos; });
}

/// Modems are no sound cards.
bool is_hardware(const Sysroot& root, const std::string& card)
{
    const std::string folder = std::string(class_folder) + card;
    if (is_made(root.link(folder).value_or("")))
        return false;
    bool modem = false;
    for (const std::string& name : root.list(folder)) {
        const auto kind = root.text(folder + "/" + name + "/pcm_class");
        if (kind && kind != "modem")
            return true;
        modem = modem || kind;
    }
    return !modem;
}

/// The codecs that play sound, "hwC0D2", by the numbers of their cards.
std::map<std::string, std::vector<std::string>> codecs(const Sysroot& root,
                                                       const std::vector<std::string>& names)
{
    constexpr std::string_view beginning = "hwC";
    std::map<std::string, std::vector<std::string>> codecs;
    for (const std::string& name : names) {
        const std::string folder = std::string(class_folder) + name;
        const std::size_t end = name.find('D');
        // The function group of a modem codec is another one, and it has none for sound.
        if (name.starts_with(beginning) && end != name.npos &&
            root.exists(folder + "/vendor_name") && root.text(folder + "/afg") != "0x0")
            codecs[name.substr(beginning.size(), end - beginning.size())].push_back(name);
    }
    return codecs;
}

/// A part of a graphics card that plays through the monitor, by its name.
bool is_monitors(const SoundDevice& device)
{
    const Value known = device_name(device);
    std::string name = known.is_null() ? "" : known.text();
    std::ranges::transform(name, name.begin(), lower_ascii);
    return name.find("hdmi") != name.npos || name.find("displayport") != name.npos;
}

/// In the order of the cards.
std::vector<SoundDevice> all_devices(const MachineView& machine)
{
    const auto listed = machine.root.list(std::string(class_folder));
    const auto names = std::make_shared<const CardNames>(card_names(machine.root));
    const auto all_codecs = codecs(machine.root, listed);
    std::vector<SoundDevice> devices;
    for (const std::string& card : listed) {
        if (!card.starts_with("card") || !is_hardware(machine.root, card))
            continue;
        const auto parts = all_codecs.find(number_of(card));
        if (parts == all_codecs.end())
            devices.push_back({machine, card, "", names});
        else
            for (const std::string& codec : parts->second)
                devices.push_back({machine, card, codec, names});
    }
    return devices;
}

/// Those of monitors last: what plays through the machine's own sockets is meant by its sound card,
/// whatever number the kernel gave it.
std::vector<SoundDevice> sound_devices(const MachineView& machine)
{
    std::vector<SoundDevice> own;
    std::vector<SoundDevice> monitors;
    for (SoundDevice& device : all_devices(machine))
        (is_monitors(device) ? monitors : own).push_back(std::move(device));
    std::ranges::move(monitors, std::back_inserter(own));
    return own;
}

} // namespace

constinit const LinuxClass Win32_SoundDevice =
    linux_class<rows, sound_devices>("Win32_SoundDevice");

} // namespace ostrelum::linux_platform
