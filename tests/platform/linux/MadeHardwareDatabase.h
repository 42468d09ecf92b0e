#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>

/// Compiled hardware databases, made by hand.
namespace ostrelum::linux_platform {

/// The lowest byte of each number first.
inline void append_numbers(std::string& bytes, std::initializer_list<std::uint64_t> numbers)
{
    for (const std::uint64_t number : numbers) {
        for (unsigned shift = 0; shift < 64; shift += 8)
            bytes += static_cast<char>(number >> shift);
    }
}

/// A compiled hardware database (its trie, version 1) in which devices with that beginning of their
/// alias have one maker.
inline std::string hardware_database(const std::string& beginning, const std::string& maker)
{
    constexpr std::uint64_t header = 80, node = 24, child = 16, value = 16;
    constexpr std::uint64_t strings = header + node + value;
    const std::string key = std::string(" ID_VENDOR_FROM_DATABASE") + '\0';
    const std::string prefix = beginning + "*" + '\0';
    const std::string text = '\0' + prefix + key + maker + '\0';
    std::string bytes = "KSLPHHRH";
    append_numbers(bytes, {252, strings + text.size(), header, node, child, value, header,
                           node + value, text.size()});
    append_numbers(bytes, {strings + 1, 0, 1, strings + 1 + prefix.size(),
                           strings + 1 + prefix.size() + key.size()});
    return bytes + text;
}

} // namespace ostrelum::linux_platform
