#pragma once

#include "platform/system/Clock.h"

namespace ostrelum::windows_platform {

/// The system's clocks.
class WindowsClock : public Clock {
public:
    /// Counts the time spent asleep, too.
    std::uint64_t timeGetTime() override;
    Date date() override;
    TimeOfDay time() override;
};

} // namespace ostrelum::windows_platform
