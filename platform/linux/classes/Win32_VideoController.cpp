#include "platform/linux/classes/Classes.h"
#include "platform/linux/devices/CurrentMode.h"
#include "platform/linux/devices/DeviceNames.h"
#include "platform/linux/devices/GraphicsDriver.h"
#include "platform/linux/devices/SessionScreens.h"
#include "platform/linux/formats/CimDateTime.h"
#include "platform/linux/text/Text.h"

#include <bit>
#include <limits>
#include <memory>
#include <vector>

namespace ostrelum::linux_platform {
namespace {

struct Adapter {
    const MachineView& machine;
    /// One for all adapters of a query.
    std::shared_ptr<const SessionScreens> screens;
    GraphicsCard card;
    bool first;
    /// Kept, so that width and height are those of one mode even if it changes meanwhile.
    mutable std::optional<DisplayMode> known_mode = std::nullopt;
    /// Each read once for all properties.
    mutable std::optional<std::optional<std::string>> known_driver = {};
    mutable std::optional<RefreshRange> known_limits = {};

    const DisplayMode& mode() const
    {
        if (!known_mode)
            known_mode = current_mode(machine, *screens, card, first);
        return *known_mode;
    }
    const std::optional<std::string>& driver() const
    {
        if (!known_driver)
            known_driver = graphics_driver(machine.root, card);
        return *known_driver;
    }
};

/// A number of a mode, in which 0 is not known.
Value known(int number)
{
    return number > 0 ? Value(number) : Value();
}

int hertz(const DisplayMode& mode)
{
    return (mode.refresh_mHz + 500) / 1000;
}

/// Only connectors with analog lines need a converter, and it is always the chip's own.
Value converter(const Adapter& adapter)
{
    for (const Connector& connector : adapter.screens->graphics().connectors(adapter.card)) {
        if (connector.label().starts_with("VGA-") || connector.label().starts_with("DVI-I-"))
            return "Internal";
    }
    return {};
}

/// What is on the board. Drivers leave out what they keep for themselves, which is less than a step
/// in which cards are made: a quarter of a GiB, or powers of two below that.
std::uint64_t fitted(std::uint64_t bytes)
{
    constexpr std::uint64_t step = std::uint64_t{256} << 20;
    return bytes < step ? std::bit_ceil(bytes) : (bytes + step - 1) / step * step;
}

/// Windows stops at 32 bits; more is given whole, as text.
Value memory(const Adapter& adapter)
{
    constexpr std::uint64_t beyond_any_card = std::uint64_t{1} << 50;
    const std::uint64_t told = graphics_memory(adapter.machine, adapter.card).value_or(0);
    if (told == 0 || told > beyond_any_card)
        return {};
    const std::uint64_t bytes = fitted(told);
    if (bytes > std::numeric_limits<std::uint32_t>::max())
        return std::to_string(bytes);
    return Value(bytes);
}

Value bits_per_pixel(const Adapter& adapter)
{
    return known(adapter.mode().bits_per_pixel);
}

Value width(const Adapter& adapter)
{
    return known(adapter.mode().width);
}

Value height(const Adapter& adapter)
{
    return known(adapter.mode().height);
}

Value refresh_rate(const Adapter& adapter)
{
    return known(hertz(adapter.mode()));
}

Value driver_date(const Adapter& adapter)
{
    const auto& driver = adapter.driver();
    const auto date = driver ? graphics_driver_date(adapter.machine.root, *driver) : std::nullopt;
    return date ? value_of(cim_datetime(*date)) : Value();
}

Value driver_version(const Adapter& adapter)
{
    const auto driver = adapter.driver();
    return driver ? value_of(graphics_driver_version(adapter.machine.root, *driver)) : Value();
}

Value drivers(const Adapter& adapter)
{
    return value_of(adapter.driver());
}

/// What the monitor follows, else what its modes need, else what is on.
RefreshRange read_limits(const Adapter& adapter)
{
    const auto edid = main_monitor(adapter.machine, *adapter.screens, adapter.card);
    if (edid && edid->limits)
        return *edid->limits;
    if (edid && edid->rates_of_modes)
        return *edid->rates_of_modes;
    const int now = hertz(adapter.mode());
    return {now, now};
}

const RefreshRange& limits(const Adapter& adapter)
{
    if (!adapter.known_limits)
        adapter.known_limits = read_limits(adapter);
    return *adapter.known_limits;
}

Value highest_rate(const Adapter& adapter)
{
    return known(limits(adapter).highest);
}

Value lowest_rate(const Adapter& adapter)
{
    return known(limits(adapter).lowest);
}

/// NVIDIA's driver knows the name on the box better than databases do.
std::optional<std::string> name_by_driver(const Adapter& adapter)
{
    const std::string file = "/proc/driver/nvidia/gpus/" + adapter.card.slot + "/information";
    const auto text = adapter.card.slot.empty() ? std::nullopt : adapter.machine.root.read(file);
    const auto model = text ? value_behind(*text, "Model", ':') : std::nullopt;
    return model ? text_or_none(*model) : std::nullopt;
}

Value adapter_name(const Adapter& adapter)
{
    if (const auto name = name_by_driver(adapter))
        return *name;
    const PciNames names =
        adapter.card.slot.empty() ? PciNames{} : pci_names(adapter.machine, adapter.card.slot);
    if (names.vendor && names.model)
        return std::string(bracketed_name(*names.vendor)) + " " +
               std::string(bracketed_name(*names.model));
    const auto driver = adapter.driver();
    return driver || adapter.card.slot.empty()
               ? value_of(driver)
               : value_of(pci_code(adapter.machine.root, adapter.card.slot));
}

constexpr PropertyRow<Adapter> rows[] = {
    {"AdapterDACType", converter},
    {"AdapterRAM", memory},
    {"CurrentBitsPerPixel", bits_per_pixel},
    {"CurrentHorizontalResolution", width},
    {"CurrentRefreshRate", refresh_rate},
    {"CurrentVerticalResolution", height},
    {"DriverDate", driver_date},
    {"DriverVersion", driver_version},
    {"InstalledDisplayDrivers", drivers},
    {"MaxRefreshRate", highest_rate},
    {"MinRefreshRate", lowest_rate},
    {"Name", adapter_name},
};

std::vector<Adapter> adapters(const MachineView& machine)
{
    std::vector<Adapter> adapters;
    const auto screens = std::make_shared<const SessionScreens>(machine);
    for (GraphicsCard& card : screens->cards())
        adapters.push_back({machine, screens, std::move(card), adapters.empty()});
    return adapters;
}

} // namespace

constinit const LinuxClass Win32_VideoController =
    linux_class<rows, adapters>("Win32_VideoController");

} // namespace ostrelum::linux_platform
