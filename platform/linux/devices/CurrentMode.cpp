#include "platform/linux/devices/CurrentMode.h"

#include "platform/linux/text/Text.h"

#include <algorithm>

namespace ostrelum::linux_platform {
namespace {

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
DisplayMode console_mode(const MachineView& machine, const SessionScreens& screens,
                         const GraphicsCard& card, bool first)
{
    DisplayMode mode;
    const auto folder = console_folder(machine.root, card, first);
    if (!folder || !read_console_size(machine.root, *folder, mode))
        return mode;
    mode.bits_per_pixel = static_cast<int>(
        std::min<std::uint64_t>(machine.root.number(*folder + "/bits_per_pixel").value_or(0), 64));
    const auto edid = main_monitor(machine, screens, card);
    for (const EdidTiming& timing : edid ? edid->detailed : std::vector<EdidTiming>()) {
        if (timing.width == mode.width && timing.height == mode.height && mode.refresh_mHz == 0)
            mode.refresh_mHz = timing.refresh_mHz;
    }
    return mode;
}

} // namespace

DisplayMode current_mode(const MachineView& machine, const SessionScreens& screens,
                         const GraphicsCard& card, bool first)
{
    if (const ScreenFact* screen = first ? screens.primary_somewhere() : nullptr)
        return mode_of(*screen);
    const auto monitors = screens.connected_to(card);
    if (monitors.empty())
        return console_mode(machine, screens, card, first);
    // The window system counts in its own scaled pixels: the kernel's figures are exact.
    if (const auto mode = kernel_mode_of(machine, monitors.front()))
        return *mode;
    const ScreenFact* screen = screens.at(monitors.front());
    return screen ? mode_of(*screen) : console_mode(machine, screens, card, first);
}

std::optional<Edid> main_monitor(const MachineView& machine, const SessionScreens& screens,
                                 const GraphicsCard& card)
{
    const auto monitors = screens.connected_to(card);
    return monitors.empty() ? std::nullopt : edid_of(machine.root, monitors.front());
}

} // namespace ostrelum::linux_platform
