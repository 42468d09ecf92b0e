#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace ostrelum::inline system {

using Bytes = std::vector<std::uint8_t>;
/// Bytes that somebody else keeps.
using ByteView = std::span<const std::uint8_t>;

inline ByteView bytes_of(std::string_view text)
{
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

/// The number of `count` bytes, 8 at most, from the byte `at` on, the lowest first. They must be
/// there.
constexpr std::uint64_t little_endian(ByteView bytes, std::size_t at, std::size_t count)
{
    std::uint64_t number = 0;
    for (std::size_t i = 0; i < count; ++i)
        number |= std::uint64_t{bytes[at + i]} << (8 * i);
    return number;
}

} // namespace ostrelum::inline system
