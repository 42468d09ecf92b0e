#pragma once

#include "platform/system/Bytes.h"

#include <array>
#include <cstdint>

namespace ostrelum::linux_platform {

using Digest = std::array<std::uint8_t, 32>;

/// SHA-256 of some bytes (FIPS 180-4).
Digest sha256(ByteView bytes);

/// HMAC of a message with SHA-256 (RFC 2104). The key has 64 bytes at most.
Digest hmac_sha256(ByteView key, ByteView message);

} // namespace ostrelum::linux_platform
