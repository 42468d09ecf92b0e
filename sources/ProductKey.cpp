#include "sources/ProductKey.h"

#include <algorithm>
#include <span>
#include <string_view>

namespace ostrelum::inline sources {
namespace {

constexpr std::string_view key_digits = "BCDFGHJKMPQRTVWXY2346789";
constexpr int digit_count = 25;
constexpr int group_digits = 5;

/// Size of the registry's value, and where the packed key stands in it.
constexpr std::size_t value_size = 164;
constexpr std::size_t packed_offset = 52;

/// Divides the number by the base and returns the remainder.
std::size_t divide(PackedKey& number)
{
    std::size_t remainder = 0;
    for (std::size_t at = number.size(); at-- > 0;) {
        const std::size_t value = remainder * 256 + number[at];
        number[at] = static_cast<std::uint8_t>(value / key_digits.size());
        remainder = value % key_digits.size();
    }
    return remainder;
}

} // namespace

std::string product_key(PackedKey packed)
{
    std::string key;
    for (int digit = digit_count - 1; digit >= 0; --digit) {
        key.insert(key.begin(), key_digits[divide(packed)]);
        if (digit % group_digits == 0 && digit != 0)
            key.insert(key.begin(), '-');
    }
    return key;
}

std::string ProductKeyText(Registry& registry)
{
    const auto key =
        registry.RegOpenKeyA(local_machine_root, "SOFTWARE\\MICROSOFT\\Windows NT\\CurrentVersion");
    if (!key)
        return "";
    std::array<std::uint8_t, value_size> value{};
    const auto length = registry.RegQueryValueExA(*key, "DigitalProductId", binary_type, value);
    registry.RegCloseKey(*key);
    PackedKey packed;
    if (!length || *length < packed_offset + packed.size())
        return "";
    std::ranges::copy(std::span(value).subspan<packed_offset, packed.size()>(), packed.begin());
    return product_key(packed);
}

} // namespace ostrelum::inline sources
