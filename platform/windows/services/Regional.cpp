#include "platform/windows/services/Regional.h"

#include "platform/system/Failure.h"
#include "platform/windows/services/Wide.h"

#include <array>
#include <chrono>

#include <windows.h>

namespace ostrelum::windows_platform {
namespace {

/// Longer than any form that the settings take (LOCALE_SSHORTDATE: 80 characters).
using Buffer = std::array<wchar_t, 256>;

std::string text_of(const Buffer& buffer, int length)
{
    if (length <= 0)
        throw Failure("no such date or time");
    return narrow({buffer.data(), static_cast<std::size_t>(length - 1)});
}

bool is_day(const Date& date)
{
    using namespace std::chrono;
    return year_month_day(year(date.year), month(static_cast<unsigned>(date.month)),
                          day(static_cast<unsigned>(date.day)))
        .ok();
}

WORD word(int number)
{
    return static_cast<WORD>(number);
}

} // namespace

std::string WindowsRegional::short_date(const Date& date)
{
    // The system has a form for some days that do not exist.
    if (!is_day(date))
        throw Failure("no such day");
    const SYSTEMTIME day{
        .wYear = word(date.year), .wMonth = word(date.month), .wDay = word(date.day)};
    Buffer text{};
    return text_of(text, GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_SHORTDATE, &day, nullptr,
                                         text.data(), static_cast<int>(text.size()), nullptr));
}

std::string WindowsRegional::long_time(const TimeOfDay& time)
{
    // The day is not shown, but has to be one.
    const SYSTEMTIME now{.wYear = 2000,
                         .wMonth = 1,
                         .wDay = 1,
                         .wHour = word(time.hour),
                         .wMinute = word(time.minute),
                         .wSecond = word(time.second)};
    Buffer text{};
    return text_of(text, GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, 0, &now, nullptr, text.data(),
                                         static_cast<int>(text.size())));
}

std::string WindowsRegional::decimal_sign()
{
    Buffer text{};
    return text_of(text, GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL, text.data(),
                                         static_cast<int>(text.size())));
}

} // namespace ostrelum::windows_platform
