#pragma once

#include "platform/system/FileWriter.h"

namespace ostrelum::windows_platform {

/// Puts a file in another's place in one step; it keeps the other's attributes, rights and date of
/// making. A file that the user may not write is refused. What cannot be replaced (a file of
/// several names, one in a folder that takes no new files, a device) is written over. Paths may be
/// longer than 260 characters.
class WindowsFileWriter : public FileWriter {
public:
    void replace(const std::string& path, const std::string& bytes) override;
};

} // namespace ostrelum::windows_platform
