#include "sources/Texts.h"

#include "sources/Windows1252.h"
#include "tests/Split.h"

#include <gtest/gtest.h>

namespace ostrelum {
namespace {

TEST(FillMark, FillsEveryOccurrenceAndNoMore)
{
    const struct {
        const char *form, *mark, *value, *text;
    } cases[] = {{"(#) CPUs", "(#)", "2", "2 CPUs"}, {"(#)-(#)", "(#)", "(#)", "(#)-(#)"},
                 {"(a) (A)", "(A)", "x", "(a) x"},   {"none", "(1)", "x", "none"},
                 {"((#))", "(#)", "", "()"},         {"", "(#)", "x", ""},
                 {"kept", "", "x", "kept"}};
    for (const auto& c : cases)
        EXPECT_EQ(FillMark(c.form, c.mark, c.value), c.text) << c.form;
}

TEST(CapitalText, WorksOnCharacters)
{
    for (const auto& [text, capital] :
         pairs("WORKGROUP=Workgroup|MyDomain.LOCAL=Mydomain.local|WORKGROUP-PC=Workgroup-pc|x=X|"
               "ÑANDÚ=Ñandú|éTÉ=Été|ΣΟΦΌΣ=Σοφόσ|дОМЕН Ё=Домен ё|ıIİ=Iii|1ABC=1abc|\xC3=\xC3|"
               "ȘTEFAN=Ștefan|ƯNG=Ưng|ԵՐԵՎԱՆ=Երեվան|ᾳΑι=ᾼαι|ßSS=ßss|"
               "a\xFF\xE1\xBA"
               "B=A\xFF\xE1\xBA"
               "b|😀AB=😀ab"))
        EXPECT_EQ(CapitalText(text), capital) << text;
    EXPECT_EQ(CapitalText(""), "");
}

TEST(Windows1252, HasOneByteForEachCharacter)
{
    const std::pair<const char*, const char*> cases[] = {
        {"plain ~\r\n\t", "plain ~\r\n\t"},
        {" · ñÿ\u00A0", " \xB7 \xF1\xFF\xA0"},
        {"€‚ƒ„…†‡ˆ‰Š‹ŒŽ", "\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E"},
        {"‘’“”•–—˜™š›œžŸ", "\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F"},
        {"\u0081\u008D\u008F\u0090\u009D", "\x81\x8D\x8F\x90\x9D"},
        {"\u0080\u0085 Łα漢😀", "?? ????"},
        {"cut short \xE6\xBC", "cut short ??"},
    };
    for (const auto& [utf8, bytes] : cases)
        EXPECT_EQ(windows_1252(utf8), bytes) << utf8;
}

} // namespace
} // namespace ostrelum
