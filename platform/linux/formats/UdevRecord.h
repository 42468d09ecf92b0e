#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace ostrelum::linux_platform {

/// What udev published about a device: the lines "E:KEY=value" of its file.
class UdevRecord {
public:
    explicit UdevRecord(std::string_view lines);

    /// A property's value, trimmed, not empty. Keys that end in "_ENC" are decoded: udev writes
    /// "\x20" there for what other keys lose to an underscore.
    std::optional<std::string> text(std::string_view key) const;

private:
    /// By key; the first line of a key counts.
    std::map<std::string, std::string, std::less<>> values_;
};

/// The text with each "\xNN" as the byte that it stands for.
std::string udev_decoded(std::string_view text);

} // namespace ostrelum::linux_platform
