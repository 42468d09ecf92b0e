#include "sections/BatteryRows.h"

#include "figures/Figures.h"
#include "frame/Page.h"

#include <cmath>

namespace ostrelum::inline sections {
namespace {

/// "~ 12.5 V": volts with one decimal, halves to the even neighbour. Tenths are counted before they
/// become a fraction, so that 12450 mV is a true half.
std::string voltage_text(const std::string& millivolts)
{
    if (millivolts.empty())
        return "";
    const double number = Value(millivolts).number();
    if (number != std::nearbyint(number))
        throw Failure("not a whole number of millivolts");
    const double tenths = std::nearbyint(number / 100);
    return "~ " + FillMark(Trad[Text::Volts], "(#)", RealText(tenths / 10));
}

std::string percent_text(const std::string& percent)
{
    return percent.empty() ? "" : percent + "%";
}

std::string time_left(const std::string& minutes)
{
    if (minutes.empty())
        return "";
    return FillMark(Trad[Text::ClockTime], "(HHMMSS)", MinutesText(Value(minutes).as_int32()));
}

} // namespace

void set_battery_values(const std::string& millivolts, const std::string& percent,
                        const std::string& minutes)
{
    set_value(10, [&] { return voltage_text(millivolts); });
    set_value(11, percent_text(percent));
    set_value(12, [&] { return time_left(minutes); });
}

} // namespace ostrelum::inline sections
