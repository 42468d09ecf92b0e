#pragma once

#include "platform/linux/files/Sysroot.h"
#include "platform/system/Clock.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace ostrelum::linux_platform {

/// Milliseconds of a text such as "52.86 29.70" of /proc/uptime; nothing for any other text.
std::optional<std::uint64_t> uptime_ms(std::string_view text);

/// The clocks of the machine. Of a recorded machine the time since start is the recorded one,
/// 0 if there is none; the date and the time are always today's.
class LinuxClock : public Clock {
public:
    explicit LinuxClock(const std::string& root) : files_(Sysroot::find(root)) {}
    explicit LinuxClock(Sysroot files) : files_(std::move(files)) {}

    /// Counts the time spent asleep, too.
    std::uint64_t timeGetTime() override;
    Date date() override;
    TimeOfDay time() override;

private:
    std::optional<Sysroot> files_;
};

} // namespace ostrelum::linux_platform
