#include "platform/linux/devices/CurrentMode.h"

#include "platform/linux/text/Text.h"

#include <algorithm>

namespace ostrelum::linux_platform {
namespace {

using Screens = std::vector<ScreenFact>;

/// The primary screen first.
Screens screens_of(const MachineView& machine)
{
    Screens screens = machine.session ? machine.session().screens : Screens();
    std::stable_partition(screens.begin(), screens.end(),
                          [](const ScreenFact& screen) { return screen.primary; });
    return screens;
}

const ScreenFact* screen_at(const Screens& screens, const Connector& connector)
{
    const auto found = std::ranges::find(screens, connector.label(), &ScreenFact::connector);
    return found == screens.end() ? nullptr : &*found;
}

/// The connector of the foremost screen; those without a screen come last.
const Connector* main_connector(const Screens& screens, const std::vector<Connector>& connected)
{
    const auto rank = [&](const Connector& connector) {
        const ScreenFact* screen = screen_at(screens, connector);
        return screen ? screen - screens.data() : std::ptrdiff_t(screens.size());
    };
    const auto first = std::ranges::min_element(connected, {}, rank);
    return first == connected.end() ? nullptr : &*first;
}

/// Whether the window system calls a connector of any card by the kernel's name.
bool any_known(const Screens& screens, const Sysroot& root)
{
    for (const GraphicsCard& card : graphics_cards(root)) {
        for (const Connector& connector : connected(root, card)) {
            if (screen_at(screens, connector))
                return true;
        }
    }
    return false;
}

DisplayMode mode_of(const ScreenFact& screen)
{
    return {screen.width, screen.height, screen.bits_per_pixel, screen.refresh_mHz};
}

/// The kernel's mode of a connector that is on. One that is off is not asked for: opening its card
/// would wake it.
std::optional<DisplayMode> kernel_mode_of(const MachineView& machine, const Connector& connector)
{
    if (machine.root.text(connector.folder() + "/enabled") == "disabled")
        return std::nullopt;
    return machine.system_calls->display_mode(connector.name);
}

/// The picture memory of the text consoles: of the card itself, or as the firmware left it to a
/// card without a driver that shows modes.
std::optional<std::string> console_folder(const Sysroot& root, const GraphicsCard& card, bool first)
{
    const std::string folder = card.folder() + "/graphics/";
    const auto names = root.list(folder);
    if (!names.empty())
        return folder + names.front();
    const std::string fallback = "/sys/class/graphics/fb0";
    const auto link = first && card.drm.empty() ? root.link(fallback) : std::nullopt;
    const bool firmwares = link && link->find("/platform/") != std::string::npos;
    return firmwares ? std::optional(fallback) : std::nullopt;
}

/// "1920,1080" with a comma between.
bool read_size(std::string_view text, char between, DisplayMode& mode)
{
    const std::size_t middle = text.find(between);
    if (middle == std::string_view::npos)
        return false;
    constexpr std::uint64_t widest = 0xFFFF;
    const auto width = whole_number(text.substr(0, middle));
    const auto height = whole_number(text.substr(middle + 1));
    if (!width || !height || *width > widest || *height > widest)
        return false;
    mode.width = static_cast<int>(*width);
    mode.height = static_cast<int>(*height);
    return true;
}

/// The size that is shown: of the mode in use, "U:1920x1080p-0", or of the only one that there is.
/// The picture memory may be higher than that, to scroll in.
bool read_console_size(const Sysroot& root, const std::string& folder, DisplayMode& mode)
{
    auto shown = root.text(folder + "/mode");
    if (!shown)
        shown = root.text(folder + "/modes");
    const std::string_view text = shown ? std::string_view(*shown) : std::string_view();
    const std::size_t begin = text.find(':') + 1;
    const std::size_t end = text.find_first_not_of("0123456789x", begin);
    if (text.find('\n') == text.npos && read_size(text.substr(begin, end - begin), 'x', mode))
        return true;
    return read_size(root.text(folder + "/virtual_size").value_or(""), ',', mode);
}

/// The consoles' mode. The kernel does not publish its refresh rate: it is that of the monitor's
/// own mode of this size.
DisplayMode console_mode(const MachineView& machine, const GraphicsCard& card, bool first)
{
    DisplayMode mode;
    const auto folder = console_folder(machine.root, card, first);
    if (!folder || !read_console_size(machine.root, *folder, mode))
        return mode;
    mode.bits_per_pixel = static_cast<int>(
        std::min<std::uint64_t>(machine.root.number(*folder + "/bits_per_pixel").value_or(0), 64));
    const auto edid = main_monitor(machine, card);
    for (const EdidTiming& timing : edid ? edid->detailed : std::vector<EdidTiming>()) {
        if (timing.width == mode.width && timing.height == mode.height && mode.refresh_mHz == 0)
            mode.refresh_mHz = timing.refresh_mHz;
    }
    return mode;
}

} // namespace

DisplayMode current_mode(const MachineView& machine, const GraphicsCard& card, bool first)
{
    const Screens screens = screens_of(machine);
    const auto all = connected(machine.root, card);
    const Connector* main = main_connector(screens, all);
    const ScreenFact* screen = main ? screen_at(screens, *main) : nullptr;
    if (!screen && first && !screens.empty() && !any_known(screens, machine.root))
        return mode_of(screens.front());
    if (screen) {
        // The window system counts in its own scaled pixels: the kernel's figures are exact.
        return kernel_mode_of(machine, *main).value_or(mode_of(*screen));
    }
    for (const Connector& connector : all) {
        if (const auto mode = kernel_mode_of(machine, connector))
            return *mode;
    }
    return console_mode(machine, card, first);
}

std::optional<Edid> main_monitor(const MachineView& machine, const GraphicsCard& card)
{
    const auto all = connected(machine.root, card);
    const Connector* main = main_connector(screens_of(machine), all);
    return main ? edid_of(machine.root, *main) : std::nullopt;
}

} // namespace ostrelum::linux_platform
