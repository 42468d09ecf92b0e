#pragma once

#include "platform/system/Clock.h"

#include <string>

namespace ostrelum::inline system {

/// The forms of the user's regional settings. All texts are UTF-8.
class Regional {
public:
    virtual ~Regional() = default;
    /// The date in the short form, such as "15/03/2012". Throws Failure for a day that no calendar
    /// has.
    virtual std::string short_date(const Date& date) = 0;
    /// The time in the long form, such as "14:05:09" or "2:05:09 PM". Throws Failure for a time
    /// that no clock shows.
    virtual std::string long_time(const TimeOfDay& time) = 0;
    /// The sign between whole part and fraction, "." or ",".
    virtual std::string decimal_sign() = 0;
};

} // namespace ostrelum::inline system
