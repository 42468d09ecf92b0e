#include "platform/linux/devices/SessionScreens.h"

#include "platform/linux/text/Text.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <string_view>
#include <utility>

namespace ostrelum::linux_platform {
namespace {

/// A connector's name taken apart: "HDMI-A-1", "HDMI1" as some drivers write it, or "eDP" where
/// there is but one.
struct OutputName {
    std::string_view kind;
    std::uint64_t number = 0;
};

OutputName parts_of(std::string_view name, std::uint64_t first)
{
    const std::size_t digits = name.find_last_not_of("0123456789") + 1;
    const auto number = whole_number(name.substr(digits));
    name = name.substr(0, digits);
    name.remove_suffix(name.ends_with('-') ? 1 : 0);
    return {name, number.value_or(first)};
}

/// The number of a window system's first output of a kind. The kernel counts from 1, and most do;
/// the drivers of X for AMD's cards count from 0. Nothing for NVIDIA's, which has a 0, too, but
/// counts something else.
std::optional<std::uint64_t> first_number(const std::vector<ScreenFact>& screens)
{
    const auto is_amds = [](const ScreenFact& screen) {
        return screen.connector.starts_with("DisplayPort-") || screen.connector == "HDMI-A-0";
    };
    const auto is_zero = [](const ScreenFact& screen) { return screen.connector.ends_with("-0"); };
    if (std::ranges::any_of(screens, is_amds))
        return 0;
    return std::ranges::any_of(screens, is_zero) ? std::nullopt : std::optional<std::uint64_t>(1);
}

/// Kinds that X calls otherwise than the kernel does: "HDMI" is its "HDMI-A".
bool is_same_kind(std::string_view of_screen, std::string_view of_kernel)
{
    if (of_kernel == "HDMI-A" && of_screen == "HDMI")
        return true;
    if (of_kernel == "DP" && of_screen == "DisplayPort")
        return true;
    return of_screen == of_kernel || (of_screen == "DVI" && of_kernel.starts_with("DVI-"));
}

/// Whether the window system's name of a screen is that of the connector.
class ByName {
public:
    explicit ByName(const std::vector<ScreenFact>& screens) : first_(first_number(screens)) {}

    bool operator()(const ScreenFact& screen, const Connector& connector) const
    {
        if (!first_)
            return false;
        const OutputName ours = parts_of(connector.label(), 1);
        const OutputName theirs = parts_of(screen.connector, *first_);
        return theirs.number - *first_ == ours.number - 1 && is_same_kind(theirs.kind, ours.kind);
    }

private:
    std::optional<std::uint64_t> first_;
};

} // namespace

SessionScreens::SessionScreens(const MachineView& machine)
    : machine_(machine), graphics_(machine.root),
      screens_(machine.session ? machine.session().screens : std::vector<ScreenFact>())
{
    std::stable_partition(screens_.begin(), screens_.end(), std::mem_fn(&ScreenFact::primary));
    const auto place = [&](const auto& is_at) {
        for (const GraphicsCard& card : graphics_.all()) {
            for (const Connector& connector : graphics_.connected(card)) {
                const auto found = std::ranges::find_if(
                    screens_, [&](const ScreenFact& screen) { return is_at(screen, connector); });
                if (found != screens_.end())
                    places_[connector.name] = static_cast<std::size_t>(found - screens_.begin());
            }
        }
    };
    if (!screens_.empty())
        place(ByName(screens_));
    if (screens_.empty() || !places_.empty())
        return;
    // By the monitor's own name, then.
    place([&](const ScreenFact& screen, const Connector& connector) {
        const auto edid = edid_of(machine_.root, connector);
        return edid && !edid->name.empty() && edid->name == screen.model;
    });
}

const ScreenFact* SessionScreens::at(const Connector& connector) const
{
    const auto place = places_.find(connector.name);
    return place == places_.end() ? nullptr : &screens_[place->second];
}

const ScreenFact* SessionScreens::primary_somewhere() const
{
    return places_.empty() && !screens_.empty() ? &screens_.front() : nullptr;
}

std::vector<GraphicsCard> SessionScreens::cards() const
{
    std::vector<GraphicsCard> cards = graphics_.all();
    std::stable_partition(cards.begin(), cards.end(), [&](const GraphicsCard& card) {
        const auto connectors = graphics_.connected(card);
        return std::ranges::any_of(connectors, [&](const Connector& connector) {
            return at(connector) == screens_.data() && !screens_.empty();
        });
    });
    return cards;
}

std::vector<Connector> SessionScreens::connected_to(const GraphicsCard& card) const
{
    std::vector<std::pair<std::size_t, Connector>> ranked;
    for (Connector& each : graphics_.connected(card))
        ranked.emplace_back(rank(each), std::move(each));
    std::ranges::stable_sort(ranked, {}, [](const auto& each) { return each.first; });
    std::vector<Connector> connectors;
    for (auto& [rank, connector] : ranked)
        connectors.push_back(std::move(connector));
    return connectors;
}

std::size_t SessionScreens::rank(const Connector& connector) const
{
    if (const ScreenFact* screen = at(connector))
        return static_cast<std::size_t>(screen - screens_.data());
    const bool off = machine_.root.text(connector.folder() + "/enabled") == "disabled";
    return screens_.size() + (off ? 1 : 0);
}

} // namespace ostrelum::linux_platform
