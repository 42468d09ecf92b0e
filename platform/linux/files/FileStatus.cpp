#include "platform/linux/files/FileStatus.h"

#include "platform/system/Failure.h"

#include <cerrno>
#include <system_error>

namespace ostrelum::linux_platform {

void fail_at(const std::string& path)
{
    throw Failure(path + ": " + std::generic_category().message(errno));
}

struct stat regular_status(const Descriptor& file, const std::string& path)
{
    struct stat status = {};
    if (::fstat(file.number(), &status) != 0)
        fail_at(path);
    if (!S_ISREG(status.st_mode))
        throw Failure(path + ": not a regular file");
    return status;
}

} // namespace ostrelum::linux_platform
