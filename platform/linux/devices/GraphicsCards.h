#pragma once

#include "platform/linux/files/Sysroot.h"
#include "platform/linux/formats/Edid.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

/// Graphics cards and what is plugged into them.
namespace ostrelum::linux_platform {

struct GraphicsCard {
    /// Place on the PCI bus, such as "0000:01:00.0"; empty for a card that is not on it.
    std::string slot;
    /// Name of its display device, such as "card0"; empty without a driver that shows modes.
    std::string drm;

    /// Folder of the device.
    std::string folder() const;
    bool operator==(const GraphicsCard&) const = default;
};

struct Connector {
    /// Such as "card0-HDMI-A-1".
    std::string name;

    std::string folder() const { return "/sys/class/drm/" + name; }
    /// Its name on any card: "HDMI-A-1".
    std::string_view label() const;
};

/// The graphics cards of a machine and their connectors, listed once.
class GraphicsCards {
public:
    explicit GraphicsCards(const Sysroot& root);

    /// The card that the firmware started on first, since the kernel numbers them by chance; then
    /// those with a monitor, then the others. Among equals those on PCI come first, by place.
    /// Displays that programs make are none.
    const std::vector<GraphicsCard>& all() const { return cards_; }

    /// A card's connectors by name, with and without a monitor.
    std::vector<Connector> connectors(const GraphicsCard& card) const;

    /// Those with a monitor.
    std::vector<Connector> connected(const GraphicsCard& card) const;

private:
    struct Port {
        Connector connector;
        bool connected;
    };
    const std::vector<Port>& ports_of(const GraphicsCard& card) const;

    /// By the names of the cards' display devices.
    std::map<std::string, std::vector<Port>> ports_;
    std::vector<GraphicsCard> cards_;
};

/// The data of the monitor at the connector.
std::optional<Edid> edid_of(const Sysroot& root, const Connector& connector);

} // namespace ostrelum::linux_platform
