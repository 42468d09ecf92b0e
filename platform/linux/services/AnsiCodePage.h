#pragma once

#include "platform/system/AnsiCodePage.h"
#include "sources/Windows1252.h"

namespace ostrelum::linux_platform {

/// Linux has no code page beside Unicode: a report is saved as on a Western system, where most who
/// are sent one can read it.
class LinuxAnsiCodePage : public AnsiCodePage {
public:
    std::string encoded(std::string_view utf8) override { return windows_1252(utf8); }
};

} // namespace ostrelum::linux_platform
