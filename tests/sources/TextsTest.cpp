#include "sources/Texts.h"

#include "sources/LetterCase.h"
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
               "a\xFF\xE1\xBA"
               "B=A\xFF\xE1\xBA"
               "b|😀AB=😀ab"))
        EXPECT_EQ(CapitalText(text), capital) << text;
    EXPECT_EQ(CapitalText(""), "");
}

TEST(LetterCase, AgreesWithTheSystemsTablesOnAllItsAlphabets)
{
    const std::string before = std::setlocale(LC_CTYPE, nullptr);
    ASSERT_NE(std::setlocale(LC_CTYPE, "C.UTF-8"), nullptr);
    const std::pair<char32_t, char32_t> alphabets[] = {
        {0, 0x17F}, {0x386, 0x3CE}, {0x400, 0x52F}, {0x1E00, 0x1E9E}, {0x1EA0, 0x1EFF}};
    for (const auto& [first, last] : alphabets) {
        for (char32_t c = first; c <= last; ++c) {
            EXPECT_EQ(upper_case(c), std::towupper(static_cast<wint_t>(c))) << unsigned{c};
            EXPECT_EQ(lower_case(c), std::towlower(static_cast<wint_t>(c))) << unsigned{c};
        }
    }
    std::setlocale(LC_CTYPE, before.c_str());
}

} // namespace
} // namespace ostrelum
