#include "platform/linux/files/ReadToEnd.h"

#include <array>
#include <cerrno>

namespace ostrelum::linux_platform {

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
