#include "platform/linux/formats/UdevRecord.h"

#include "platform/linux/text/Text.h"

namespace ostrelum::linux_platform {

UdevRecord::UdevRecord(std::string_view lines)
{
    for (const std::string_view line : lines_of(lines)) {
        const std::size_t sign = line.find('=');
        const std::string_view key = trimmed_space(line.substr(0, sign));
        if (sign != line.npos && key.starts_with("E:"))
            values_.try_emplace(std::string(key.substr(2)), trimmed_space(line.substr(sign + 1)));
    }
}

std::optional<std::string> UdevRecord::text(std::string_view key) const
{
    const auto value = values_.find(key);
    if (value == values_.end())
        return std::nullopt;
    return text_or_none(key.ends_with("_ENC") ? udev_decoded(value->second) : value->second);
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
