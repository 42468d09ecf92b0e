#pragma once

#include "platform/system/Browser.h"

namespace ostrelum::windows_platform {

/// Opens addresses with the program that the system has for them.
class WindowsBrowser : public Browser {
public:
    void ShellExecuteA(const std::string& verb, const std::string& address) override;
};

} // namespace ostrelum::windows_platform
