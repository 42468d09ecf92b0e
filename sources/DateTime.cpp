#include "sources/DateTime.h"

#include "platform/system/Failure.h"

namespace ostrelum::inline sources {
namespace {

/// The whole number in `count` characters, counted from 1 as the service's own documentation counts
/// them.
int columns(std::string_view text, std::size_t first, std::size_t count)
{
    if (text.size() < first - 1 + count)
        throw Failure("datetime too short");
    int number = 0;
    for (const char digit : text.substr(first - 1, count)) {
        if (digit < '0' || digit > '9')
            throw Failure("datetime without digits");
        number = number * 10 + (digit - '0');
    }
    return number;
}

} // namespace

std::string WmiDateText(std::string_view datetime, Regional& regional)
{
    return regional.short_date(
        {columns(datetime, 1, 4), columns(datetime, 5, 2), columns(datetime, 7, 2)});
}

std::string WmiTimeText(std::string_view datetime, Regional& regional)
{
    return regional.long_time(
        {columns(datetime, 9, 2), columns(datetime, 11, 2), columns(datetime, 13, 2)});
}

} // namespace ostrelum::inline sources
