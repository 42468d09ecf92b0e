#pragma once

#include "platform/system/Failure.h"

#include <cstdint>
#include <string>
#include <variant>

namespace ostrelum::inline system {

/// A stored setting: text ("REG_SZ") or an unsigned 32-bit number ("REG_DWORD").
using RegValue = std::variant<std::string, std::uint32_t>;

/// The shell object: named values that live between runs, and the user's folders.
class Shell {
public:
    virtual ~Shell() = default;

    /// The value of the full name, such as "HKEY_CURRENT_USER\Software\...\Language". Throws
    /// Failure if there is none.
    virtual RegValue RegRead(const std::string& name) = 0;

    /// Stores a value with the type "REG_SZ" or "REG_DWORD" and creates what is missing on the way.
    /// Throws Failure if it cannot be stored; the store is then as it was.
    virtual void RegWrite(const std::string& name, const RegValue& value,
                          const std::string& type) = 0;

    /// The path of "Fonts" or "Desktop". Throws Failure for any other name and where there is no
    /// such folder.
    virtual std::string SpecialFolders(const std::string& name) = 0;
};

} // namespace ostrelum::inline system
