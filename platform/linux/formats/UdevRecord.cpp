#include "platform/linux/formats/UdevRecord.h"

#include "platform/linux/text/Text.h"

namespace ostrelum::linux_platform {

std::optional<std::string> UdevRecord::text(std::string_view key) const
{
    const auto value = value_behind(lines_, "E:" + std::string(key), '=');
    if (!value)
        return std::nullopt;
    return text_or_none(key.ends_with("_ENC") ? udev_decoded(*value) : std::string(*value));
}

std::string udev_decoded(std::string_view text)
{
    constexpr std::size_t escape_length = 4;
    std::string decoded;
    while (!text.empty()) {
        const auto byte = text.starts_with("\\x") && text.size() >= escape_length
                              ? whole_number(text.substr(2, 2), 16)
                              : std::nullopt;
        decoded += byte ? static_cast<char>(*byte) : text.front();
        text.remove_prefix(byte ? escape_length : 1);
    }
    return decoded;
}

} // namespace ostrelum::linux_platform
