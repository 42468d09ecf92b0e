#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace ostrelum::linux_platform {

/// What udev published about a device: the lines "E:KEY=value" of its file.
class UdevRecord {
public:
    explicit UdevRecord(std::string lines) : lines_(std::move(lines)) {}

    /// A property's value, trimmed, not empty. Keys that end in "_ENC" are decoded: udev writes
    /// "\x20" there for what other keys lose to an underscore.
    std::optional<std::string> text(std::string_view key) const;

    /// Whether a key of that beginning can be there: a quick no for most.
    bool mentions(std::string_view beginning) const
    {
        return lines_.find(beginning) != lines_.npos;
    }

private:
    std::string lines_;
};

/// The text with each "\xNN" as the byte that it stands for.
std::string udev_decoded(std::string_view text);

} // namespace ostrelum::linux_platform
