#include "report/AnsiText.h"

#include <gtest/gtest.h>

namespace ostrelum {
namespace {

TEST(AnsiText, HasOneByteForEachCharacter)
{
    const std::pair<const char*, const char*> cases[] = {
        {"plain ~\r\n\t", "plain ~\r\n\t"},
        {" · ñÿ\u00A0", " \xB7 \xF1\xFF\xA0"},
        {"€‚ƒ„…†‡ˆ‰Š‹ŒŽ", "\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E"},
        {"‘’“”•–—˜™š›œžŸ", "\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F"},
        {"\u0081\u008D\u008F\u0090\u009D", "\x81\x8D\x8F\x90\x9D"},
        {"\u0080\u0085 Łα漢😀", "?? ????"},
        {"cut short \xE6\xBC", "cut short ?"},
    };
    for (const auto& [utf8, bytes] : cases)
        EXPECT_EQ(ansi_text(utf8), bytes) << utf8;
}

} // namespace
} // namespace ostrelum
