#include "platform/linux/classes/Classes.h"
#include "platform/linux/formats/Placeholder.h"
#include "platform/linux/text/Text.h"

#include <limits>
#include <utility>
#include <vector>

namespace ostrelum::linux_platform {
namespace {

struct Battery {
    const MachineView& machine;
    /// The kernel's name, such as "BAT0".
    std::string name;

    std::optional<std::string> text(const char* file) const
    {
        return machine.root.text("/sys/class/power_supply/" + name + "/" + file);
    }

    /// A text of the maker's, unless it is a placeholder.
    std::optional<std::string> maker_text(const char* file) const
    {
        const auto line = text(file);
        return line ? meaningful_text(*line) : std::nullopt;
    }

    /// A quantity, whatever its sign: some drivers count what flows out of the battery as negative.
    std::optional<double> amount(const char* file) const
    {
        const auto line = text(file);
        const auto number =
            line ? whole_number(std::string_view(*line).substr(line->starts_with('-')))
                 : std::nullopt;
        return number ? std::optional(static_cast<double>(*number)) : std::nullopt;
    }

    /// The quotient of two quantities.
    std::optional<double> ratio(const char* file, const char* divisor) const
    {
        const auto part = amount(file);
        const auto whole = part ? amount(divisor) : std::nullopt;
        return whole && *whole > 0 ? std::optional(*part / *whole) : std::nullopt;
    }
};

Value voltage(const Battery& battery)
{
    constexpr std::uint64_t microvolts_in_millivolt = 1000;
    for (const char* file : {"voltage_now", "voltage_min_design", "voltage_max_design"}) {
        const auto line = battery.text(file);
        if (const auto microvolts = line ? whole_number(*line) : std::nullopt)
            return *microvolts / microvolts_in_millivolt;
    }
    return {};
}

/// Serial number, maker and name run together, as Windows forms it.
Value device_id(const Battery& battery)
{
    std::string id;
    if (const auto serial = battery.text("serial_number"))
        id = meaningful_serial(*serial).value_or("");
    for (const char* file : {"manufacturer", "model_name"})
        id += battery.maker_text(file).value_or("");
    return id.empty() ? battery.name : id;
}

Value charge(const Battery& battery)
{
    constexpr double all = 100;
    auto percent = battery.amount("capacity");
    for (const auto& [now, full] :
         {std::pair{"energy_now", "energy_full"}, std::pair{"charge_now", "charge_full"}}) {
        const auto part = percent ? std::nullopt : battery.ratio(now, full);
        if (part)
            percent = all * *part;
    }
    return percent ? Value(static_cast<int>(std::min(*percent, all))) : Value();
}

/// Minutes, while the battery is what the machine runs on.
Value run_time(const Battery& battery)
{
    constexpr double minutes_in_hour = 60, seconds_in_minute = 60;
    if (battery.text("status") != "Discharging")
        return {};
    auto minutes = battery.amount("time_to_empty_now");
    if (minutes)
        *minutes /= seconds_in_minute;
    for (const auto& [now, flow] :
         {std::pair{"energy_now", "power_now"}, std::pair{"charge_now", "current_now"}}) {
        const auto hours = minutes ? std::nullopt : battery.ratio(now, flow);
        if (hours)
            minutes = minutes_in_hour * *hours;
    }
    const bool fits = minutes && *minutes <= std::numeric_limits<std::uint32_t>::max();
    return fits ? Value(static_cast<std::uint32_t>(*minutes)) : Value();
}

Value battery_name(const Battery& battery)
{
    return battery.maker_text("model_name").value_or(battery.name);
}

constexpr PropertyRow<Battery> rows[] = {
    {"DesignVoltage", voltage},     {"DeviceID", device_id}, {"EstimatedChargeRemaining", charge},
    {"EstimatedRunTime", run_time}, {"Name", battery_name},
};

/// The batteries that power the machine, by name: not those of mice and headsets, and no empty
/// bays.
std::vector<Battery> batteries(const MachineView& machine)
{
    std::vector<Battery> batteries;
    for (std::string& name : machine.root.list("/sys/class/power_supply")) {
        Battery battery{machine, std::move(name)};
        if (battery.text("type") == "Battery" && battery.text("scope") != "Device" &&
            battery.text("present") != "0")
            batteries.push_back(std::move(battery));
    }
    return batteries;
}

} // namespace

constinit const LinuxClass Win32_Battery = linux_class<rows, batteries>("Win32_Battery");

} // namespace ostrelum::linux_platform
