#include "platform/linux/files/WholeFile.h"

#include "platform/linux/files/FileStatus.h"
#include "platform/linux/files/ReadToEnd.h"

#include <cerrno>
#include <fcntl.h>

namespace ostrelum::linux_platform {

std::optional<std::string> read_whole_file(const std::string& path, std::size_t limit)
{
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!file && (errno == ENOENT || errno == ENOTDIR))
        return std::nullopt;
    if (!file)
        fail_at(path);
    regular_status(file, path);
    auto content = read_to_end(file, limit);
    if (!content)
        fail_at(path);
    return content;
}

} // namespace ostrelum::linux_platform
