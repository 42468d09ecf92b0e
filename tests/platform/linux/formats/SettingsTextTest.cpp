#include "platform/linux/formats/SettingsText.h"

#include <gtest/gtest.h>

namespace ostrelum::linux_platform {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;
using Found = std::optional<RegValue>;

constexpr SettingName colour{"HKEY_CURRENT_USER\\Key", "ColorValue"};

TEST(SettingsText, ReadsWhatAUserTypes)
{
    const std::pair<std::string_view, Found> cases[] = {
        {"ColorValue = 255", 255U},
        {"  colorvalue=0xFF9600  ", 0xFF9600U},
        {"ColorValue = 4294967295 # white?", 4294967295U},
        {"ColorValue = 4294967296", "4294967296"s},
        {"ColorValue = -1", "-1"s},
        {"ColorValue = 0x", "0x"s},
        {"ColorValue = 2 5 5", "2 5 5"s},
        {"ColorValue = \"255\" ; a text", "255"s},
        {"ColorValue = ' Dutch '", " Dutch "s},
        {"ColorValue = Dutch", "Dutch"s},
        {"ColorValue = C#", "C#"s},
        {"ColorValue = a=b", "a=b"s},
        {"ColorValue =", ""s},
        {"ColorValue = # nothing", ""s},
        {"ColorValue = \"\"", ""s},
        {R"(ColorValue = "a\\b\"c\n\x41\x00\xE9\q")", "a\\b\"c\nA\0\\xE9\\q"s},
        {"ColorValue = \"Dutch", std::nullopt},
        {R"(ColorValue = "Dutch\")", std::nullopt},
        {"ColorValue = \"Dutch\" English", std::nullopt},
        {"ColorValue = \xC3\x28", std::nullopt},
        {"ColorValue = 2\0 55"sv, std::nullopt},
        {"ColorValue 255", std::nullopt},
        {"# ColorValue = 255", std::nullopt},
        {"ColorValues = 255", std::nullopt},
        {"", std::nullopt},
    };
    for (const auto& [line, value] : cases) {
        EXPECT_EQ(find_setting(line, colour), value) << line;
        const std::string whole = "\xEF\xBB\xBF; top\r\n[hkey_current_user\\KEY\\ ] # key\r\n"s +
                                  "\xFF\xFE garbage \0 [\r\n= 3\n"s + std::string(line) + "\r\n\n";
        EXPECT_EQ(find_setting(whole, colour), value) << line;
    }
}

TEST(SettingsText, KeepsTheKeysApart)
{
    const std::pair<std::string_view, Found> cases[] = {
        {"[Other]\nColorValue = 1", std::nullopt},
        {"[Other]\nColorValue = 1\n[HKEY_CURRENT_USER\\Key]\nColorValue = 2", 2U},
        {"[HKEY_CURRENT_USER\\Key]\nColorValue = 2\n[Other]\nColorValue = 1", 2U},
        {"ColorValue = 1\nColorValue = 2", 2U},
        {"[HKEY_CURRENT_USER\\Key]\nColorValue = 1\nColorValue = \"2", 1U},
        {"[HKEY_CURRENT_USER\\Key\nColorValue = 1", 1U},
        {"[HKEY_CURR\x01\nColorValue = 1", 1U},
        {"[Other]\n[HKEY_CURRENT_USER\\Key]\nColorValue = 1\n[", 1U},
    };
    for (const auto& [text, value] : cases)
        EXPECT_EQ(find_setting(text, colour), value) << text;
}

TEST(SettingsText, WritesOneValueAndKeepsEveryOtherByte)
{
    const std::pair<std::string, std::string> cases[] = {
        {"# mine\nColorValue = 1 # old\n\xFF\n", "# mine\nColorValue = 7 # old\n\xFF\n"},
        {"ColorValue=\"1\"\r\n", "ColorValue= 7\r\n"},
        {"ColorValue = # none", "ColorValue = 7 # none"},
        {"ColorValue =", "ColorValue = 7"},
        {"ColorValue = \"1\"; old", "ColorValue = 7 ; old"},
        {"ColorValue = 1\nColorValue = 2", "ColorValue = 1\nColorValue = 7"},
        {"\xEF\xBB\xBF[hkey_current_user\\key]\r\nA = 1\r\n\r\n# end\r\n",
         "\xEF\xBB\xBF[hkey_current_user\\key]\r\nA = 1\r\nColorValue = 7\r\n\r\n# end\r\n"},
        {"[HKEY_CURRENT_USER\\Key]", "[HKEY_CURRENT_USER\\Key]\nColorValue = 7\n"},
        {"[HKEY_CURRENT_USER\\Key]\nColorValue = \"1\n[B]\nA = 1",
         "[HKEY_CURRENT_USER\\Key]\nColorValue = \"1\nColorValue = 7\n[B]\nA = 1"},
        {"A\0 = 1"s, "A\0 = 1\n\n[HKEY_CURRENT_USER\\Key]\nColorValue = 7\n"s},
    };
    for (const auto& [before, after] : cases)
        EXPECT_EQ(with_setting(before, colour, 7U), after) << before;
}

TEST(SettingsText, ReadsBackWhatItWrites)
{
    std::string every;
    for (int byte = 0; byte < 128; ++byte)
        every += static_cast<char>(byte);
    const RegValue values[] = {
        0U, 4294967295U, ""s, " Dutch "s, "255"s, every, "caf\u00E9 \U0001F600"s};
    for (const std::string start :
         {"", "[HKEY_CURRENT_USER\\Key]\r\nColorValue = x\r\n", "garbage"}) {
        std::string text = start;
        for (const RegValue& value : values) {
            text = with_setting(text, colour, value);
            EXPECT_EQ(find_setting(text, colour), value) << text;
        }
    }
}

} // namespace
} // namespace ostrelum::linux_platform
