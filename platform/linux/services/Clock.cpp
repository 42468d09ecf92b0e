#include "platform/linux/services/Clock.h"

#include <charconv>
#include <ctime>

namespace ostrelum::linux_platform {

namespace {

std::tm local_now()
{
    const std::time_t now = std::time(nullptr);
    std::tm local = {};
    // localtime_r alone need not see a change of the time zone.
    ::tzset();
    ::localtime_r(&now, &local);
    return local;
}

std::uint64_t recorded_ms(const Sysroot& files)
{
    return uptime_ms(files.read("/proc/uptime").value_or("")).value_or(0);
}

std::uint64_t running_ms()
{
    timespec now = {};
    ::clock_gettime(CLOCK_BOOTTIME, &now);
    return static_cast<std::uint64_t>(now.tv_sec) * 1000U +
           static_cast<std::uint64_t>(now.tv_nsec) / 1000000U;
}

} // namespace

std::optional<std::uint64_t> uptime_ms(std::string_view text)
{
    std::uint32_t seconds = 0;
    std::uint32_t hundredths = 0;
    const char* const end = text.data() + text.size();
    const auto whole = std::from_chars(text.data(), end, seconds);
    if (whole.ec != std::errc() || end - whole.ptr < 3 || *whole.ptr != '.')
        return std::nullopt;
    const char* const fraction = whole.ptr + 1;
    if (std::from_chars(fraction, fraction + 2, hundredths).ptr != fraction + 2)
        return std::nullopt;
    return std::uint64_t{seconds} * 1000U + std::uint64_t{hundredths} * 10U;
}

std::uint64_t LinuxClock::timeGetTime()
{
    if (!files_)
        return 0;
    return files_->is_live() ? running_ms() : recorded_ms(*files_);
}

Date LinuxClock::date()
{
    const std::tm now = local_now();
    return {now.tm_year + 1900, now.tm_mon + 1, now.tm_mday};
}

TimeOfDay LinuxClock::time()
{
    const std::tm now = local_now();
    // A leap second is shown as the one before it.
    return {now.tm_hour, now.tm_min, now.tm_sec > 59 ? 59 : now.tm_sec};
}

} // namespace ostrelum::linux_platform
