#include "platform/linux/services/Regional.h"

#include "platform/system/Failure.h"
#include "sources/Ascii.h"

#include <chrono>

namespace ostrelum::linux_platform {

namespace {

constexpr std::string_view twelve_hours = "%I:%M:%S %p";

/// The format with each conversion replaced by what `replace(modifiers, letter)` gives for it.
/// Other digits than 0 to 9 (modifier O) are not asked for: the texts around these are in digits.
template <class Replace>
std::string converted(std::string_view format, Replace&& replace)
{
    std::string result;
    while (!format.empty()) {
        const std::size_t letter = format.find_first_not_of("_-0^#+EO123456789", 1);
        if (format.front() != '%') {
            result += format.front();
            format.remove_prefix(1);
        } else if (letter == std::string_view::npos) {
            break;
        } else {
            std::string modifiers(format.substr(1, letter - 1));
            std::erase(modifiers, 'O');
            result += replace(modifiers, format[letter]);
            format.remove_prefix(letter + 1);
        }
    }
    return std::string(trim_blanks(result));
}

std::string conversion(const std::string& modifiers, char letter)
{
    return '%' + modifiers + letter;
}

/// The first of the variables that says something; empty where that is the neutral locale.
std::string locale_name(const Environment& environment, std::string_view category)
{
    for (const std::string_view name :
         {std::string_view("LC_ALL"), category, std::string_view("LANG")}) {
        std::string locale = variable(environment, name);
        if (locale == "C" || locale == "POSIX" || locale.starts_with("C."))
            return "";
        if (!locale.empty())
            return locale;
    }
    return "";
}

std::optional<UserLocale> locale_for(const Environment& environment, std::string_view category)
{
    const std::string name = locale_name(environment, category);
    return name.empty() ? std::nullopt : UserLocale::named(name);
}

/// Empty where the locale has no names for the halves of the day: the hours of the morning would
/// then look like those of the afternoon.
std::string half_day_format(const UserLocale& locale)
{
    if (locale.own_text(PM_STR).empty())
        return "";
    const std::string format = locale.own_text(T_FMT_AMPM);
    return format.empty() ? std::string(twelve_hours) : format;
}

std::chrono::year_month_day calendar_day(const Date& date)
{
    const std::chrono::year_month_day day{std::chrono::year(date.year),
                                          std::chrono::month(static_cast<unsigned>(date.month)),
                                          std::chrono::day(static_cast<unsigned>(date.day))};
    const bool in_range = date.month >= 1 && date.month <= 12 && date.day >= 1 && date.day <= 31;
    if (!in_range || date.year < 1 || date.year > 9999 || !day.ok())
        throw Failure("no such day");
    return day;
}

} // namespace

std::string short_date_format(std::string_view locale_format)
{
    return converted(locale_format, [](const std::string& modifiers, char letter) -> std::string {
        const bool era = modifiers.find('E') != std::string::npos;
        if (letter == 'y' && !era)
            return "%Y";
        // A century stands before two digits of a year, which are four now.
        if (letter == 'C' && !era)
            return "";
        return letter == 'D' ? "%m/%d/%Y" : conversion(modifiers, letter);
    });
}

std::string long_time_format(std::string_view locale_format, std::string_view half_days)
{
    bool halves = false;
    std::string format =
        converted(locale_format, [&](const std::string& modifiers, char letter) -> std::string {
            halves = halves || std::string_view("IlpPr").find(letter) != std::string_view::npos;
            if (letter == 'r')
                return long_time_format(half_days, twelve_hours);
            return letter == 'Z' || letter == 'z' ? "" : conversion(modifiers, letter);
        });
    return halves && half_days.empty() ? "%H:%M:%S" : format;
}

LinuxRegional::LinuxRegional(const Environment& environment)
{
    if (const auto locale = locale_for(environment, "LC_TIME")) {
        time_locale_ = *locale;
        forms_.date_format = short_date_format(locale->own_text(D_FMT));
        forms_.time_format = long_time_format(locale->own_text(T_FMT), half_day_format(*locale));
    }
    if (const auto locale = locale_for(environment, "LC_NUMERIC"))
        forms_.decimal_sign = locale->text(RADIXCHAR);
}

std::string LinuxRegional::short_date(const Date& date)
{
    const auto day = calendar_day(date);
    std::tm moment = {};
    moment.tm_year = date.year - 1900;
    moment.tm_mon = date.month - 1;
    moment.tm_mday = date.day;
    moment.tm_wday =
        static_cast<int>(std::chrono::weekday(std::chrono::sys_days(day)).c_encoding());
    return std::string(trim_blanks(time_locale_.formatted(forms_.date_format, moment)));
}

std::string LinuxRegional::long_time(const TimeOfDay& time)
{
    if (time.hour < 0 || time.hour > 23 || time.minute < 0 || time.minute > 59 || time.second < 0 ||
        time.second > 59)
        throw Failure("no such time");
    std::tm moment = {};
    moment.tm_hour = time.hour;
    moment.tm_min = time.minute;
    moment.tm_sec = time.second;
    moment.tm_mday = 1;
    return std::string(trim_blanks(time_locale_.formatted(forms_.time_format, moment)));
}

} // namespace ostrelum::linux_platform
