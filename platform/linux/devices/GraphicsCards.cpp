#include "platform/linux/devices/GraphicsCards.h"

#include <algorithm>
#include <array>
#include <set>
#include <string_view>

namespace ostrelum::linux_platform {
namespace {

constexpr const char* pci_devices = "/sys/bus/pci/devices";
constexpr const char* drm_devices = "/sys/class/drm";

/// A display device by the kernel's name and the link that leads to it.
struct DrmDevice {
    std::string name, link;
};

std::vector<std::string> display_slots(const Sysroot& root)
{
    constexpr std::string_view display_class = "0x03";
    std::vector<std::string> slots = root.list(pci_devices);
    std::erase_if(slots, [&](const std::string& slot) {
        const auto kind = root.text(pci_devices + ("/" + slot) + "/class");
        return !kind || !kind->starts_with(display_class);
    });
    return slots;
}

/// Whether the firmware started on the card.
bool is_boot_card(const Sysroot& root, const GraphicsCard& card)
{
    const std::string folder = card.folder();
    return root.number(folder + "/boot_vga") == 1U || root.number(folder + "/boot_display") == 1U;
}

/// Cards outside PCI that are hardware of their own: not the firmware's picture memory, displays
/// that programs make, and screens over USB that another card draws.
bool is_hardware(const Sysroot& root, const DrmDevice& card)
{
    constexpr std::array<std::string_view, 4> made = {"simple-framebuffer", "evdi", "vkms", "vgem"};
    const auto driver = root.link(drm_devices + ("/" + card.name) + "/device/driver");
    if (!driver || card.link.find("/virtual/") != std::string::npos)
        return false;
    return std::ranges::find(made, driver->substr(driver->rfind('/') + 1)) == made.end();
}

/// The first display device that is left of each place on PCI through which its link leads.
std::map<std::string_view, std::vector<DrmDevice*>> devices_by_folder(std::vector<DrmDevice>& drm)
{
    std::map<std::string_view, std::vector<DrmDevice*>> devices;
    for (DrmDevice& device : drm) {
        const std::string_view link = device.link;
        for (auto start = link.find('/'); start != link.npos;) {
            const auto end = link.find('/', start + 1);
            if (end != link.npos)
                devices[link.substr(start + 1, end - start - 1)].push_back(&device);
            start = end;
        }
    }
    return devices;
}

/// All cards, those on PCI first.
std::vector<GraphicsCard> listed_cards(const Sysroot& root, std::vector<DrmDevice> drm)
{
    auto devices = devices_by_folder(drm);
    std::set<const DrmDevice*> taken;
    std::vector<GraphicsCard> cards;
    for (const std::string& slot : display_slots(root)) {
        const auto own = devices.find(slot);
        DrmDevice* first = nullptr;
        for (DrmDevice* each : own == devices.end() ? std::vector<DrmDevice*>() : own->second) {
            if (!first && taken.insert(each).second)
                first = each;
        }
        cards.push_back({slot, first ? first->name : ""});
    }
    for (const DrmDevice& other : drm) {
        if (!taken.contains(&other) && is_hardware(root, other))
            cards.push_back({"", other.name});
    }
    return cards;
}

} // namespace

std::string GraphicsCard::folder() const
{
    return slot.empty() ? drm_devices + ("/" + drm) + "/device" : pci_devices + ("/" + slot);
}

std::string_view Connector::label() const
{
    return std::string_view(name).substr(std::min(name.find('-'), name.size() - 1) + 1);
}

GraphicsCards::GraphicsCards(const Sysroot& root)
{
    std::vector<DrmDevice> drm;
    for (std::string& name : root.list(drm_devices)) {
        const std::string folder = drm_devices + ("/" + name);
        const std::size_t hyphen = name.find('-');
        // The connectors stand beside the cards: "card0-VGA-1".
        if (hyphen != std::string::npos)
            ports_[name.substr(0, hyphen)].push_back(
                {{name}, root.text(folder + "/status") == "connected"});
        else if (name.starts_with("card"))
            drm.push_back({std::move(name), root.link(folder).value_or("")});
    }
    cards_ = listed_cards(root, std::move(drm));
    // 0 for the card that the firmware started on, 1 for others with a monitor, 2 for the rest.
    std::map<std::string, int> ranks;
    for (const GraphicsCard& card : cards_)
        ranks[card.folder()] = is_boot_card(root, card) ? 0 : connected(card).empty() ? 2 : 1;
    std::ranges::stable_sort(cards_, {},
                             [&](const GraphicsCard& card) { return ranks[card.folder()]; });
}

const std::vector<GraphicsCards::Port>& GraphicsCards::ports_of(const GraphicsCard& card) const
{
    static const std::vector<Port> none;
    const auto ports = ports_.find(card.drm);
    return ports == ports_.end() ? none : ports->second;
}

std::vector<Connector> GraphicsCards::connectors(const GraphicsCard& card) const
{
    std::vector<Connector> connectors;
    for (const Port& port : ports_of(card))
        connectors.push_back(port.connector);
    return connectors;
}

std::vector<Connector> GraphicsCards::connected(const GraphicsCard& card) const
{
    std::vector<Connector> connectors;
    for (const Port& port : ports_of(card)) {
        if (port.connected)
            connectors.push_back(port.connector);
    }
    return connectors;
}

std::optional<Edid> edid_of(const Sysroot& root, const Connector& connector)
{
    constexpr std::size_t all_blocks = std::size_t{256} * 128;
    const auto bytes = root.read(connector.folder() + "/edid", all_blocks);
    return bytes ? read_edid(*bytes) : std::nullopt;
}

} // namespace ostrelum::linux_platform
