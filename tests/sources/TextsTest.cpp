#include "sources/Texts.h"

#include "sources/LetterCase.h"
#include "sources/Windows1252.h"
#include "tests/Split.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cwctype>

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

TEST(LetterCase, AgreesWithTheSystemsTablesOnAllItsAlphabets)
{
    const std::string before = std::setlocale(LC_CTYPE, nullptr);
    if (!std::setlocale(LC_CTYPE, "C.UTF-8"))
        GTEST_SKIP() << "the C library of this system has no tables of Unicode";
    const std::pair<char32_t, char32_t> alphabets[] = {
        {0, 0x3E1},       {0x3F0, 0x587},   {0x1C80, 0x1C88}, {0x1D79, 0x1D8E}, {0x1E00, 0x218F},
        {0x2C60, 0x2C7F}, {0xA640, 0xA7F6}, {0xAB53, 0xAB53}, {0xFF21, 0xFF5A}};
    // A library that is newer than the table has letters here, partners of some that had none.
    const auto is_new = [](char32_t letter) { return letter >= 0xA7CB && letter <= 0xA7DC; };
    const auto same = [&](char32_t ours, wint_t systems, char32_t letter) {
        const bool came_later = ours == letter && (is_new(letter) || is_new(systems));
        EXPECT_TRUE(ours == systems || came_later) << unsigned{letter};
    };
    for (const auto& [first, last] : alphabets) {
        for (char32_t c = first; c <= last; ++c) {
            same(upper_case(c), std::towupper(static_cast<wint_t>(c)), c);
            same(lower_case(c), std::towlower(static_cast<wint_t>(c)), c);
        }
    }
    std::setlocale(LC_CTYPE, before.c_str());
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
