#include "figures/StringTable.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <iterator>
#include <regex>
#include <set>
#include <string_view>

namespace ostrelum {
namespace {

using Keys = std::set<std::size_t>;
using Table = decltype(Trad);

constexpr std::string_view sentinel = "left over from the language before";
const Keys reserved = {142, 156, 157};

struct Language {
    const char* name;
    void (*fill)();
};
constexpr Language languages[] = {
    {"English", LangEnglish}, {"Spanish", LangSpanish}, {"Dutch", LangDutch}};

/// The table as one language leaves it when every slot held something else before.
Table table_of(const Language& language)
{
    Trad.fill(std::string(sentinel));
    language.fill();
    return Trad;
}

/// The marks of a template, whose order is the language's own affair, and the pattern of a filter.
std::multiset<std::string> marks(const std::string& text)
{
    static const std::regex mark(R"(\((#|[1-4]|HHMMSS|DDMMYYYY)\)| \((\*\.[a-z]{3})\)\|\2\||[|*])");
    return {std::sregex_token_iterator(text.begin(), text.end(), mark),
            std::sregex_token_iterator()};
}

std::string ending(const std::string& text)
{
    const std::size_t last = text.find_last_not_of(".:!|,;?");
    return last == std::string::npos ? text : text.substr(last + 1);
}

/// UTF-8 of printable characters up to U+00FF, each of which code page 1252 holds.
bool is_printable_latin(const std::string& text)
{
    static const std::regex characters("([\x20-\x7E]|\xC2[\xA0-\xBF]|\xC3[\x80-\xBF])*");
    return std::regex_match(text, characters);
}

/// The keys whose rows still differ when each is seen through `view`.
template <class View>
Keys differing(const Table& one, const Table& other, View view)
{
    Keys keys;
    for (std::size_t key = 1; key < one.size(); ++key)
        if (view(one[key]) != view(other[key]))
            keys.insert(key);
    return keys;
}

TEST(StringTable, EachLanguageFillsAllKeysButTheFirstAndTheReservedOnes)
{
    for (const Language& language : languages) {
        const Table table = table_of(language);
        EXPECT_EQ(table[0], sentinel) << language.name;
        for (std::size_t key = 1; key < table.size(); ++key) {
            SCOPED_TRACE(testing::Message() << language.name << " " << key << ": " << table[key]);
            EXPECT_NE(table[key], sentinel);
            EXPECT_EQ(table[key].empty(), reserved.contains(key));
            EXPECT_TRUE(is_printable_latin(table[key]));
            EXPECT_FALSE(table[key].starts_with(' ') || table[key].ends_with(' '));
        }
    }
}

TEST(StringTable, TranslationsKeepMarksAndEndingsOfTheEnglishRowAndNothingElse)
{
    // The Dutch hour takes no full stop, and its "not applicable" is an abbreviation.
    const Keys other_ending[] = {{}, {}, {54, 132}};
    // Names, units, words that two languages share, and 80 and 83, which never were translated.
    const Keys shared[] = {{},
                           {3, 40, 50, 54, 80, 142, 152, 156, 157, 163, 168, 173, 178},
                           {13, 15, 43, 60, 61, 83, 85, 142, 156, 157, 168, 173, 178, 184, 186}};
    const Table english = table_of(languages[0]);
    for (std::size_t i = 0; i < std::size(languages); ++i) {
        const Table table = table_of(languages[i]);
        EXPECT_EQ(differing(english, table, marks), Keys{}) << languages[i].name;
        EXPECT_EQ(differing(english, table, ending), other_ending[i]) << languages[i].name;
        for (std::size_t key = 1; i > 0 && key < table.size(); ++key)
            EXPECT_EQ(table[key] == english[key], shared[i].contains(key))
                << key << " " << table[key];
    }
}

TEST(StringTable, RowsThatNoPageShowsStayAsUsersKnowThem)
{
    const struct {
        std::size_t key;
        const char* texts[3];
    } rows[] = {
        {83, {"Speed:", "Velocidad:", "Speed:"}},
        {95, {"Data bus width:", "Ancho del bus de datos:", "Gegevensbussnelheid:"}},
        {132, {"Not applicable", "Configuración no establecida", "N.v.t."}},
        {183, {"Programmer:", "Autor:", "Ontwikkeld door:"}},
    };
    for (std::size_t i = 0; i < std::size(languages); ++i) {
        const Table table = table_of(languages[i]);
        for (const auto& row : rows)
            EXPECT_EQ(table[row.key], row.texts[i]) << languages[i].name;
    }
}

} // namespace
} // namespace ostrelum
