#include "platform/linux/formats/LoginRecords.h"

#include <algorithm>

namespace ostrelum::linux_platform {
namespace {

constexpr std::uint64_t user_process = 7;

std::uint64_t type_of(ByteView record)
{
    return little_endian(record, 0, 2);
}

/// From RUN_LVL to ACCOUNTING (utmp(5)).
std::size_t records_of_known_type(ByteView log, std::size_t record_bytes)
{
    std::size_t count = 0;
    for (; log.size() >= record_bytes; log = log.subspan(record_bytes)) {
        const std::uint64_t type = type_of(log);
        count += type >= 1 && type <= 9 ? 1U : 0U;
    }
    return count;
}

/// The account's name fills 32 bytes at 44, or ends with a NUL.
std::string_view name_in(ByteView record)
{
    const auto* begin = reinterpret_cast<const char*>(record.data()) + 44;
    const std::string_view field(begin, 32);
    return field.substr(0, field.find('\0'));
}

std::int64_t time_of(ByteView record)
{
    const bool wide = record.size() == wide_utmp_bytes;
    const std::uint64_t seconds =
        wide ? little_endian(record, 344, 8) : little_endian(record, 340, 4);
    return static_cast<std::int64_t>(seconds);
}

} // namespace

std::size_t utmp_bytes(ByteView log, std::size_t otherwise)
{
    const std::size_t narrow = records_of_known_type(log, usual_utmp_bytes);
    const std::size_t wide = records_of_known_type(log, wide_utmp_bytes);
    if (narrow == wide)
        return otherwise;
    return wide > narrow ? wide_utmp_bytes : usual_utmp_bytes;
}

std::map<std::string, LoginHistory, std::less<>> login_histories(ByteView log,
                                                                 std::size_t record_bytes)
{
    std::map<std::string, LoginHistory, std::less<>> histories;
    for (; log.size() >= record_bytes; log = log.subspan(record_bytes)) {
        const ByteView record = log.first(record_bytes);
        if (type_of(record) != user_process)
            continue;
        LoginHistory& history = histories[std::string(name_in(record))];
        ++history.logins;
        history.last = time_of(record);
    }
    return histories;
}

std::optional<std::int64_t> last_login(ByteView record)
{
    const bool wide = record.size() == lastlog_bytes(wide_utmp_bytes);
    if (!wide && record.size() != lastlog_bytes(usual_utmp_bytes))
        return std::nullopt;
    const auto seconds = static_cast<std::int64_t>(little_endian(record, 0, wide ? 8 : 4));
    return seconds > 0 ? std::optional(seconds) : std::nullopt;
}

std::uint32_t failed_logins(ByteView file)
{
    constexpr std::size_t record_bytes = 64;
    constexpr std::size_t status_at = 54;
    constexpr std::uint64_t valid = 1;
    std::uint32_t count = 0;
    for (; file.size() >= record_bytes; file = file.subspan(record_bytes))
        count += (little_endian(file, status_at, 2) & valid) != 0 ? 1U : 0U;
    return count;
}

} // namespace ostrelum::linux_platform
