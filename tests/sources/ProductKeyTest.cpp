#include "sources/ProductKey.h"
#include "platform/memory/MemorySystem.h"

#include <gtest/gtest.h>

#include <string>

namespace ostrelum {

using namespace memory_platform;

namespace {

/// The bytes of a key from the lowest on, written with two digits each.
PackedKey bytes(const std::string& digits)
{
    PackedKey key{};
    for (std::size_t i = 0; i < key.size(); ++i)
        key[i] = static_cast<std::uint8_t>(std::stoi(digits.substr(2 * i, 2), nullptr, 16));
    return key;
}

constexpr const char* sample_key = "C2346-789BC-DFGHJ-KMPQR-TVWXY";
constexpr const char* packed_sample = "f81ec043345472b0109f148a7c7200";

TEST(ProductKeyText, IsReadAnewEachTimeFromAValueThatHasTheRightLength)
{
    MemoryRegistry registry;
    EXPECT_EQ(ProductKeyText(registry), "");
    const std::string folder = "SOFTWARE\\MICROSOFT\\Windows NT\\CurrentVersion";
    registry.values[{folder, "Other"}] = {1};
    EXPECT_EQ(ProductKeyText(registry), "");
    for (const std::size_t length : {0U, 66U, 67U, 164U, 164U, 165U}) {
        std::vector<std::uint8_t> value(200, 0xEE);
        std::ranges::copy(bytes(packed_sample), value.begin() + 52);
        value.resize(length);
        registry.values[{folder, "DigitalProductId"}] = value;
        EXPECT_EQ(ProductKeyText(registry), length < 67 || length > 164 ? "" : sample_key)
            << length;
    }
    EXPECT_TRUE(registry.open.empty()) << "each key that was opened is closed";
}

} // namespace
} // namespace ostrelum
