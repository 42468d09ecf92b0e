#include "platform/linux/formats/InstallationId.h"

#include "platform/linux/formats/Sha256.h"
#include "platform/linux/text/Hex.h"
#include "platform/linux/text/Text.h"

#include <algorithm>

namespace ostrelum::linux_platform {
namespace {

using Id = std::array<std::uint8_t, 16>;

/// This program's own, drawn at random once.
constexpr Id application_id{0x5b, 0x0e, 0x9c, 0x41, 0xd7, 0x2a, 0x4f, 0x83,
                            0x96, 0x1d, 0xc3, 0x74, 0xae, 0x58, 0x20, 0xb9};

std::optional<Id> parse_id(std::string_view text)
{
    Id id{};
    if (text.size() != 2 * id.size())
        return std::nullopt;
    for (std::size_t i = 0; i < id.size(); ++i) {
        const auto byte = whole_number(text.substr(2 * i, 2), 16);
        if (!byte)
            return std::nullopt;
        id[i] = static_cast<std::uint8_t>(*byte);
    }
    return id;
}

} // namespace

std::optional<std::string> installation_id(std::string_view machine_id)
{
    const auto machine = parse_id(trimmed_space(machine_id));
    if (!machine || std::ranges::all_of(*machine, [](std::uint8_t byte) { return byte == 0; }))
        return std::nullopt;
    Digest digest = hmac_sha256(*machine, application_id);
    // A random UUID's version and variant (RFC 9562, 5.4), as the service that made the scheme sets
    // them.
    digest[6] = static_cast<std::uint8_t>((digest[6] & 0x0F) | 0x40);
    digest[8] = static_cast<std::uint8_t>((digest[8] & 0x3F) | 0x80);
    std::string text;
    for (std::size_t i = 0; i < Id().size(); ++i)
        text += lower_hex(digest[i], 2);
    return text;
}

} // namespace ostrelum::linux_platform
