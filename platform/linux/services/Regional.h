#pragma once

#include "platform/linux/formats/UserLocale.h"
#include "platform/linux/services/Environment.h"
#include "platform/system/Regional.h"

#include <string>
#include <string_view>

namespace ostrelum::linux_platform {

/// Formats in the notation of strftime. The first values are those of a user without regional
/// settings (ISO 8601).
struct RegionalForms {
    std::string date_format = "%Y-%m-%d";
    std::string time_format = "%H:%M:%S";
    std::string decimal_sign = ".";
};

/// A locale's date format with the year in four digits: many locales write two, where a date of a
/// firmware or of an installation needs all four.
std::string short_date_format(std::string_view locale_format);

/// A locale's time format without time zone, which an elapsed time has none of. `half_days` is what
/// stands for "%r"; where it is empty the locale counts 24 hours.
std::string long_time_format(std::string_view locale_format, std::string_view half_days);

/// The regional forms of the locales that LC_ALL, else LC_TIME and LC_NUMERIC, else LANG name. With
/// no name, with "C" or "POSIX", and for a locale that is not installed: the first values above.
class LinuxRegional : public Regional {
public:
    explicit LinuxRegional(const Environment& environment);
    /// With given forms, and English names where a format asks for some.
    explicit LinuxRegional(RegionalForms forms) : forms_(std::move(forms)) {}

    std::string short_date(const Date& date) override;
    std::string long_time(const TimeOfDay& time) override;
    std::string decimal_sign() override { return forms_.decimal_sign; }

private:
    RegionalForms forms_;
    UserLocale time_locale_;
};

} // namespace ostrelum::linux_platform
