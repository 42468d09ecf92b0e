#pragma once

#include <cstdint>

namespace ostrelum::inline system {

/// A calendar date. Year 1 to 9999, month 1 to 12, day 1 to 31.
struct Date {
    int year = 0;
    int month = 0;
    int day = 0;
    bool operator==(const Date&) const = default;
};

/// A time of day: hour 0 to 23, minute and second 0 to 59.
struct TimeOfDay {
    int hour = 0;
    int minute = 0;
    int second = 0;
    bool operator==(const TimeOfDay&) const = default;
};

/// The machine's clocks.
class Clock {
public:
    virtual ~Clock() = default;
    /// Milliseconds since system start, however long ago that is.
    virtual std::uint64_t timeGetTime() = 0;
    /// Today in local time.
    virtual Date date() = 0;
    /// Now in local time.
    virtual TimeOfDay time() = 0;
};

} // namespace ostrelum::inline system
