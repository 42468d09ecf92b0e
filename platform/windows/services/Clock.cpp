#include "platform/windows/services/Clock.h"

#include <windows.h>

namespace ostrelum::windows_platform {
namespace {

SYSTEMTIME local_time()
{
    SYSTEMTIME now{};
    GetLocalTime(&now);
    return now;
}

} // namespace

std::uint64_t WindowsClock::timeGetTime()
{
    return GetTickCount64();
}

Date WindowsClock::date()
{
    const SYSTEMTIME now = local_time();
    return {.year = now.wYear, .month = now.wMonth, .day = now.wDay};
}

TimeOfDay WindowsClock::time()
{
    const SYSTEMTIME now = local_time();
    return {.hour = now.wHour, .minute = now.wMinute, .second = now.wSecond};
}

} // namespace ostrelum::windows_platform
