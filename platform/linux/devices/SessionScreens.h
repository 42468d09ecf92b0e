#pragma once

#include "platform/linux/devices/GraphicsCards.h"
#include "platform/linux/files/MachineView.h"

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace ostrelum::linux_platform {

/// The screens of the desktop session at the connectors that show them; of a machine without a
/// session, its connectors alone. It keeps a reference to the machine.
class SessionScreens {
public:
    explicit SessionScreens(const MachineView& machine);

    /// What the connector shows; nullptr for no screen of the session.
    const ScreenFact* at(const Connector& connector) const;

    /// The primary screen of a session of which no screen could be found at a connector, as some
    /// window systems have names of their own; else nullptr.
    const ScreenFact* primary_somewhere() const;

    const GraphicsCards& graphics() const { return graphics_; }

    /// All cards: that of the primary screen first, then in their own order.
    std::vector<GraphicsCard> cards() const;

    /// A card's connectors with a monitor: those of screens first, the primary one before the
    /// others, then what is on without being a screen. The first is the main one, of which all is
    /// told that is told of one monitor.
    std::vector<Connector> connected_to(const GraphicsCard& card) const;

private:
    std::size_t rank(const Connector& connector) const;

    const MachineView& machine_;
    GraphicsCards graphics_;
    /// The primary screen first.
    std::vector<ScreenFact> screens_;
    /// Numbers of screens by names of connectors.
    std::map<std::string, std::size_t> places_;
};

} // namespace ostrelum::linux_platform
