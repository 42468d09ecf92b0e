#include "fuzz/Target.h"
#include "platform/linux/formats/LoginRecords.h"

#include <string_view>

namespace {

using namespace ostrelum;
using namespace ostrelum::linux_platform;

constexpr std::size_t name_at = 44;
constexpr std::size_t name_size = 32;
constexpr std::uint64_t user_process = 7;

/// Whose login the first record is; empty for none.
std::string_view first_user(ByteView log, std::size_t record_bytes)
{
    if (log.size() < record_bytes || little_endian(log, 0, 2) != user_process)
        return {};
    const std::string_view field(reinterpret_cast<const char*>(log.data()) + name_at, name_size);
    return field.substr(0, field.find('\0'));
}

void check_history(ByteView log, std::size_t record_bytes)
{
    const std::string_view user = first_user(log, record_bytes);
    const LoginHistory history = login_histories(log, record_bytes)[std::string(user)];
    if (history.logins > log.size() / record_bytes ||
        history.last.has_value() != (history.logins > 0))
        std::abort();
    if (!user.empty() && history.logins == 0)
        std::abort();
}

} // namespace

/// Any bytes as the log of logins, as a record of the last one and as a list of failures: no more
/// logins and failures than there are records, and the first record's user has logged in.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr std::size_t neither = 0;
    constexpr std::size_t failure_bytes = 64;
    const ByteView bytes(data, size);
    for (const std::size_t record_bytes : {usual_utmp_bytes, wide_utmp_bytes})
        check_history(bytes, record_bytes);
    const std::size_t width = utmp_bytes(bytes, neither);
    if (width != neither && width != usual_utmp_bytes && width != wide_utmp_bytes)
        std::abort();
    const auto last = last_login(bytes);
    if ((last && *last <= 0) || failed_logins(bytes) > size / failure_bytes)
        std::abort();
    return 0;
}
