#pragma once

#include "platform/system/AnsiCodePage.h"

namespace ostrelum::windows_platform {

/// A code page of the system.
class WindowsAnsiCodePage : public AnsiCodePage {
public:
    /// The one that the system has for programs that do not know Unicode.
    WindowsAnsiCodePage();
    explicit WindowsAnsiCodePage(unsigned int number) : number_(number) {}

    std::string encoded(std::string_view utf8) override;

private:
    unsigned int number_;
};

} // namespace ostrelum::windows_platform
