#pragma once

#include "platform/system/Regional.h"

namespace ostrelum::windows_platform {

/// The forms that the user has set in the system's regional settings, also those changed while the
/// program runs.
class WindowsRegional : public Regional {
public:
    std::string short_date(const Date& date) override;
    std::string long_time(const TimeOfDay& time) override;
    std::string decimal_sign() override;
};

} // namespace ostrelum::windows_platform
