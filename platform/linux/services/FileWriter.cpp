#include "platform/linux/services/FileWriter.h"

#include "platform/linux/files/FileReplacement.h"

namespace ostrelum::linux_platform {

void LinuxFileWriter::replace(const std::string& path, const std::string& bytes)
{
    constexpr mode_t as_the_user_has_it = 0666;
    FileReplacement(path, as_the_user_has_it).commit(bytes);
}

} // namespace ostrelum::linux_platform
