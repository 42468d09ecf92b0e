#pragma once

#include "platform/system/Registry.h"

namespace ostrelum::linux_platform {

/// Linux keeps no binary values of the machine: no key opens.
class LinuxRegistry : public Registry {
public:
    std::optional<Key> RegOpenKeyA(std::uint32_t, const std::string&) override
    {
        return std::nullopt;
    }
    std::optional<std::size_t> RegQueryValueExA(Key, const std::string&, std::uint32_t,
                                                std::span<std::uint8_t>) override
    {
        return std::nullopt;
    }
    void RegCloseKey(Key) override {}
};

} // namespace ostrelum::linux_platform
