#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace ostrelum::inline system {

/// Predefined root of the machine-wide keys.
inline constexpr std::uint32_t local_machine_root = 0x80000002U;
/// Type number of a binary value.
inline constexpr std::uint32_t binary_type = 3;

/// Binary values of the machine-wide registry, read only.
class Registry {
public:
    using Key = std::uintptr_t;

    virtual ~Registry() = default;

    /// Opens a key for reading; nothing where there is no such key.
    virtual std::optional<Key> RegOpenKeyA(std::uint32_t root, const std::string& path) = 0;

    /// Fills `buffer` with the value and returns its length in bytes; nothing where the value is
    /// missing, has another type or is longer than the buffer.
    virtual std::optional<std::size_t> RegQueryValueExA(Key key, const std::string& name,
                                                        std::uint32_t type,
                                                        std::span<std::uint8_t> buffer) = 0;

    virtual void RegCloseKey(Key key) = 0;
};

} // namespace ostrelum::inline system
