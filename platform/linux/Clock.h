#pragma once

#include "platform/system/Clock.h"

#include <optional>
#include <string>
#include <string_view>

namespace ostrelum {

/// Milliseconds of a text such as "52.86 29.70" of /proc/uptime; nothing for any other text.
std::optional<std::uint64_t> uptime_ms(std::string_view text);

/// The clocks of the machine. Under another root than "/" the time since start is the recorded
/// one, 0 if there is none; the date and the time are always today's.
class LinuxClock : public Clock {
public:
    explicit LinuxClock(std::string root) : root_(std::move(root)) {}

    /// Counts the time spent asleep, too.
    std::uint32_t timeGetTime() override;
    Date date() override;
    TimeOfDay time() override;

private:
    std::string root_;
};

} // namespace ostrelum
