#include "platform/linux/devices/GraphicsCards.h"

#include <algorithm>
#include <array>

namespace ostrelum::linux_platform {
namespace {

constexpr const char* pci_devices = "/sys/bus/pci/devices";
constexpr const char* drm_devices = "/sys/class/drm";

/// A display device by the kernel's name and the link that leads to it.
struct DrmDevice {
    std::string name, link;
};

std::vector<DrmDevice> drm_cards(const Sysroot& root)
{
    std::vector<DrmDevice> cards;
    for (std::string& name : root.list(drm_devices)) {
        // The connectors stand beside the cards: "card0-VGA-1".
        if (!name.starts_with("card") || name.find('-') != std::string::npos)
            continue;
        std::string link = root.link(drm_devices + ("/" + name)).value_or("");
        cards.push_back({std::move(name), std::move(link)});
    }
    return cards;
}

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

/// 0 for the card that the firmware started on, 1 for others with a monitor, 2 for the rest.
int rank(const Sysroot& root, const GraphicsCard& card)
{
    const std::string folder = card.folder();
    if (root.number(folder + "/boot_vga") == 1U || root.number(folder + "/boot_display") == 1U)
        return 0;
    return connected(root, card).empty() ? 2 : 1;
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

} // namespace

std::string GraphicsCard::folder() const
{
    return slot.empty() ? drm_devices + ("/" + drm) + "/device" : pci_devices + ("/" + slot);
}

std::string_view Connector::label() const
{
    return std::string_view(name).substr(std::min(name.find('-'), name.size() - 1) + 1);
}

std::vector<GraphicsCard> graphics_cards(const Sysroot& root)
{
    std::vector<DrmDevice> drm = drm_cards(root);
    std::vector<GraphicsCard> cards;
    for (const std::string& slot : display_slots(root)) {
        const auto own = std::ranges::find_if(drm, [&](const DrmDevice& each) {
            return each.link.find("/" + slot + "/") != std::string::npos;
        });
        cards.push_back({slot, own == drm.end() ? "" : own->name});
        if (own != drm.end())
            drm.erase(own);
    }
    for (const DrmDevice& other : drm) {
        if (is_hardware(root, other))
            cards.push_back({"", other.name});
    }
    std::ranges::stable_sort(cards, {}, [&](const GraphicsCard& card) { return rank(root, card); });
    return cards;
}

std::vector<Connector> connectors(const Sysroot& root, const GraphicsCard& card)
{
    std::vector<Connector> connectors;
    for (std::string& name : root.list(drm_devices)) {
        if (!card.drm.empty() && name.starts_with(card.drm + "-"))
            connectors.push_back({std::move(name)});
    }
    return connectors;
}

std::vector<Connector> connected(const Sysroot& root, const GraphicsCard& card)
{
    std::vector<Connector> all = connectors(root, card);
    std::erase_if(all, [&](const Connector& each) {
        return root.text(each.folder() + "/status") != "connected";
    });
    return all;
}

std::optional<Edid> edid_of(const Sysroot& root, const Connector& connector)
{
    constexpr std::size_t all_blocks = std::size_t{256} * 128;
    const auto bytes = root.read(connector.folder() + "/edid", all_blocks);
    return bytes ? read_edid(*bytes) : std::nullopt;
}

} // namespace ostrelum::linux_platform
