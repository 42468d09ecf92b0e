#include "sources/ProductKey.h"
#include "platform/memory/MemorySystem.h"

#include <gtest/gtest.h>

#include <string_view>

namespace ostrelum {
namespace {

constexpr std::string_view Alphabet = "BCDFGHJKMPQRTVWXY2346789";
const std::pair<std::string, std::string> Place{"SOFTWARE\\MICROSOFT\\Windows NT\\CurrentVersion",
                                                "DigitalProductId"};

/// Packs a printed key, digit by digit from the left: number = number * 24 + digit.
PackedKey packed(std::string_view key)
{
    PackedKey number{};
    for (const char letter : key) {
        if (letter == '-')
            continue;
        auto carry = static_cast<unsigned>(Alphabet.find(letter));
        for (std::uint8_t& byte : number) {
            carry += byte * 24U;
            byte = static_cast<std::uint8_t>(carry);
            carry >>= 8U;
        }
        EXPECT_EQ(carry, 0U) << "the key takes more than 120 bits";
    }
    return number;
}

TEST(ProductKey, IsWhatWasPacked)
{
    for (const char* key : {"BBBBB-BBBBB-BBBBB-BBBBB-BBBBB", "BBBBB-BBBBB-BBBBB-BBBBB-BBBBC",
                            "C2346-789BC-DFGHJ-KMPQR-TVWXY", "9B8C7-D6F4G-3H2JY-KXMWP-VQTRB",
                            "CBBBB-BBBBB-BBBBB-BBBBB-BBBBB", "99999-99999-99999-99999-99999"})
        EXPECT_EQ(product_key(packed(key)), key);
}

class ProductKeyValue : public ::testing::Test {
protected:
    /// The registry's value of that length, with a key at its place.
    void store(std::size_t length)
    {
        std::vector<std::uint8_t> value(200, 0xEE);
        const PackedKey key = packed("C2346-789BC-DFGHJ-KMPQR-TVWXY");
        std::copy(key.begin(), key.end(), value.begin() + 52);
        value.resize(length);
        registry.values[Place] = value;
    }
    MemoryRegistry registry;
};

TEST_F(ProductKeyValue, IsReadAnewEachTime)
{
    store(164);
    EXPECT_EQ(ProductKeyText(registry), "C2346-789BC-DFGHJ-KMPQR-TVWXY");
    EXPECT_EQ(ProductKeyText(registry), "C2346-789BC-DFGHJ-KMPQR-TVWXY");
    EXPECT_TRUE(registry.open.empty()) << "each key that was opened is closed";
}

TEST_F(ProductKeyValue, ThatIsMissingOrHasTheWrongLengthIsNoKey)
{
    EXPECT_EQ(ProductKeyText(registry), "");
    registry.values[{Place.first, "Other"}] = {1};
    EXPECT_EQ(ProductKeyText(registry), "");
    for (const std::size_t length : {0U, 66U, 165U}) {
        store(length);
        EXPECT_EQ(ProductKeyText(registry), "") << length;
    }
    EXPECT_TRUE(registry.open.empty());
    store(67);
    EXPECT_NE(ProductKeyText(registry), "");
}

} // namespace
} // namespace ostrelum
