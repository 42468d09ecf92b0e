#pragma once

#include "platform/system/Registry.h"

namespace ostrelum::windows_platform {

/// The system's registry, as 64-bit programs see it.
class WindowsRegistry : public Registry {
public:
    std::optional<Key> RegOpenKeyA(std::uint32_t root, const std::string& path) override;
    std::optional<std::size_t> RegQueryValueExA(Key key, const std::string& name,
                                                std::uint32_t type,
                                                std::span<std::uint8_t> buffer) override;
    void RegCloseKey(Key key) override;
};

} // namespace ostrelum::windows_platform
