#include "platform/linux/formats/Smbios.h"

#include <gtest/gtest.h>
#include <string>

namespace ostrelum::linux_platform {
namespace {

using namespace std::string_literals;

/// A structure: its type, the fields behind the header, and its strings, each with its NUL.
std::string structure(int type, const std::string& fields, const std::string& strings)
{
    const auto length = static_cast<char>(4 + fields.size());
    return static_cast<char>(type) + (length + "\1\0"s) + fields +
           (strings.empty() ? "\0"s : strings) + "\0"s;
}

using Text = std::optional<std::string_view>;

const std::string firmware = structure(0, "\1\2\0\xF0\3"s, "Maker\0001.0\00001/02/2003\0"s);
const std::string board = structure(2, "\1\2"s, "Board Co.\0B-1\0"s);
const std::string end = structure(127, "", "");

TEST(Smbios, GivesFieldsAndStrings)
{
    const std::string table = firmware + structure(1, "", "") + board + end + board;
    const auto found = smbios_structures(bytes_of(table));
    ASSERT_EQ(found.size(), 3U);
    EXPECT_EQ(found[0].type(), 0);
    EXPECT_EQ(found[0].string(4), "Maker");
    EXPECT_EQ(found[0].string(8), "01/02/2003");
    EXPECT_EQ(found[0].byte(7), 0xF0);
    EXPECT_EQ(found[0].word(6), 0xF000);
    EXPECT_EQ(found[0].dword(5), 0x03F00002U);
    // Fields that begin or end behind the structure.
    EXPECT_EQ(found[0].byte(9), std::nullopt);
    EXPECT_EQ(found[0].word(8), std::nullopt);
    EXPECT_EQ(found[0].dword(6), std::nullopt);
    EXPECT_EQ(found[0].string(9), Text());
    EXPECT_EQ(found[0].dword(static_cast<std::size_t>(-1)), std::nullopt);
    EXPECT_EQ(found[1].string(4), Text());
    EXPECT_EQ(found[2].string(5), "B-1");
    for (const char number : {'\0', '\3', '\xFF'}) {
        const std::string odd = structure(2, std::string(1, number), "Board\0B-1\0"s);
        EXPECT_EQ(smbios_structures(bytes_of(odd)).at(0).string(4), Text());
    }
}

TEST(Smbios, StopsAtALengthThatCannotBe)
{
    const auto count = [](const std::string& table) {
        return smbios_structures(bytes_of(table)).size();
    };
    for (const char length : {'\0', '\3', '\xFF'})
        EXPECT_EQ(count(board + "\1"s + length + "\1\0"s + firmware), 1U);
    // 255 bytes that are all there are a structure.
    const std::string longest = "\1\xFF\1\0"s + std::string(251, '\1') + "Text\0\0"s;
    EXPECT_EQ(count(longest + board), 2U);
    EXPECT_EQ(smbios_structures(bytes_of(longest))[0].string(254), "Text");
    EXPECT_EQ(count(longest.substr(0, 254)), 0U);
    // A table that is cut keeps what is whole of it, texts too.
    const std::string cut = (firmware + board).substr(0, firmware.size() + 12);
    EXPECT_EQ(count(cut), 2U);
    EXPECT_EQ(smbios_structures(bytes_of(cut))[1].string(5), Text());
}

} // namespace
} // namespace ostrelum::linux_platform
