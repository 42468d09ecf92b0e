#pragma once

#include "platform/system/FileWriter.h"

namespace ostrelum::linux_platform {

/// Replaces a file in one step where it can, as FileReplacement does; a new file gets the
/// permissions that the user's programs give their files.
class LinuxFileWriter : public FileWriter {
public:
    void replace(const std::string& path, const std::string& bytes) override;
};

} // namespace ostrelum::linux_platform
