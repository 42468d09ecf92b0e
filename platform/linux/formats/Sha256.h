#pragma once

#include <array>
#include <cstdint>
#include <span>

namespace ostrelum::linux_platform {

using Digest = std::array<std::uint8_t, 32>;

/// SHA-256 of some bytes (FIPS 180-4).
Digest sha256(std::span<const std::uint8_t> bytes);

/// HMAC of a message with SHA-256 (RFC 2104). The key has 64 bytes at most.
Digest hmac_sha256(std::span<const std::uint8_t> key, std::span<const std::uint8_t> message);

} // namespace ostrelum::linux_platform
