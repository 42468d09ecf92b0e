#include "platform/linux/classes/Classes.h"
#include "platform/linux/devices/DeviceNames.h"
#include "platform/linux/devices/SessionScreens.h"
#include "platform/linux/formats/Placeholder.h"
#include "platform/linux/text/Hex.h"

#include <vector>

namespace ostrelum::linux_platform {
namespace {

/// A monitor by its own data (EDID), else by what the window system knows.
struct Monitor {
    const MachineView& machine;
    std::optional<Edid> edid;
    /// One that is part of the machine.
    bool panel;
    ScreenFact screen;
};

Value manufacturer(const Monitor& monitor)
{
    if (!monitor.edid)
        return value_of(meaningful_text(monitor.screen.maker));
    const std::string& code = monitor.edid->maker;
    return code.empty() ? Value() : monitor_maker(monitor.machine, code, monitor.panel);
}

/// The codes of maker and model, for a monitor without any name: "LGD 0690".
std::string code_of(const Edid& edid)
{
    return edid.maker + " " + upper_hex(edid.product, 4);
}

Value monitor_name(const Monitor& monitor)
{
    if (!monitor.edid)
        return value_of(meaningful_text(monitor.screen.model));
    for (const std::string& text : {monitor.edid->name, monitor.edid->free_text}) {
        if (const auto known = meaningful_text(text))
            return *known;
    }
    return monitor.edid->maker.empty() ? Value() : code_of(*monitor.edid);
}

constexpr PropertyRow<Monitor> rows[] = {
    {"MonitorManufacturer", manufacturer},
    {"Name", monitor_name},
};

bool is_panel(const Connector& connector)
{
    const std::string_view label = connector.label();
    return label.starts_with("eDP-") || label.starts_with("LVDS-") || label.starts_with("DSI-");
}

/// Those of the first graphics card first, and of each card that at the main connector, so that the
/// first is the one whose mode and limits that card tells. Some virtual machines and drivers have
/// no data of monitors: the window system's screens then stand for them.
std::vector<Monitor> monitors(const MachineView& machine)
{
    std::vector<Monitor> monitors;
    const SessionScreens screens(machine);
    for (const GraphicsCard& card : screens.cards()) {
        for (const Connector& connector : screens.connected_to(card)) {
            if (auto edid = edid_of(machine.root, connector))
                monitors.push_back({machine, std::move(edid), is_panel(connector), {}});
        }
    }
    const SessionFacts session =
        monitors.empty() && machine.session ? machine.session() : SessionFacts{};
    for (const ScreenFact& screen : session.screens) {
        if (meaningful_text(screen.model) || meaningful_text(screen.maker))
            monitors.push_back({machine, std::nullopt, false, screen});
    }
    return monitors;
}

} // namespace

constinit const LinuxClass Win32_DesktopMonitor =
    linux_class<rows, monitors>("Win32_DesktopMonitor");

} // namespace ostrelum::linux_platform
