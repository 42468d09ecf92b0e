#include "platform/linux/files/ReadToEnd.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <sys/stat.h>

namespace ostrelum::linux_platform {
namespace {

/// Where a long file's bytes will find room without being moved again and again.
std::size_t claimed_size(const Descriptor& file, std::size_t limit)
{
    struct stat status = {};
    const bool known = ::fstat(file.number(), &status) == 0 && status.st_size > 0;
    return known ? std::min(static_cast<std::size_t>(status.st_size), limit) : 0;
}

} // namespace

std::optional<std::string> read_to_end(const Descriptor& file, std::size_t limit, FileEnd end)
{
    constexpr ssize_t page = 4096;
    std::string content;
    std::array<char, 16384> block;
    for (;;) {
        const ssize_t count = ::read(file.number(), block.data(), block.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count == 0)
            return content;
        if (count < 0)
            return std::nullopt;
        if (content.empty() && static_cast<std::size_t>(count) == block.size())
            content.reserve(claimed_size(file, limit));
        content.append(block.data(), static_cast<std::size_t>(count));
        if (content.size() > limit) {
            errno = EFBIG;
            return std::nullopt;
        }
        if (end == FileEnd::LessThanAPage && count < page)
            return content;
    }
}

} // namespace ostrelum::linux_platform
