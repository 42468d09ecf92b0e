#pragma once

#include <string>

namespace ostrelum::inline system {

/// Opens addresses in the user's browser.
class Browser {
public:
    virtual ~Browser() = default;
    /// Asks the desktop to open `address`; returns at once, and tells nothing about success.
    virtual void ShellExecuteA(const std::string& verb, const std::string& address) = 0;
};

} // namespace ostrelum::inline system
