#include "figures/Shared.h"
#include "frame/Language.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <iterator>
#include <regex>
#include <set>
#include <string_view>

namespace ostrelum {
namespace {

using Keys = std::set<Text>;

constexpr std::string_view sentinel = "left over from the language before";
const Keys reserved = {Text{142}, Text{156}, Text{157}};

struct Language {
    const char* name;
    void (*fill)();
};
constexpr Language languages[] = {
    {"English", LangEnglish}, {"Spanish", LangSpanish}, {"Dutch", LangDutch}};

Keys all_keys()
{
    Keys keys;
    for (std::size_t key = 1; key <= StringTable::last_key; ++key)
        keys.insert(static_cast<Text>(key));
    return keys;
}

/// The table as one language leaves it when every slot held something else before.
StringTable table_of(const Language& language)
{
    Trad[Text{0}] = sentinel;
    for (const Text key : all_keys())
        Trad[key] = sentinel;
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
Keys differing(const StringTable& one, const StringTable& other, View view)
{
    Keys keys;
    for (const Text key : all_keys())
        if (view(one[key]) != view(other[key]))
            keys.insert(key);
    return keys;
}

TEST(StringTable, EachLanguageFillsAllKeysButTheFirstAndTheReservedOnes)
{
    for (const Language& language : languages) {
        const StringTable table = table_of(language);
        EXPECT_EQ(table[Text{0}], sentinel) << language.name;
        for (const Text key : all_keys()) {
            SCOPED_TRACE(testing::Message() << language.name << ": " << table[key]);
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
    const Keys other_ending[] = {{}, {}, {Text::ClockTime, Text::NotApplicable}};
    // Names, units, words that two languages share, and two rows that never were translated.
    const Keys shared[] = {
        {},
        {Text::Translator, Text::NormalAccount, Text::No, Text::ClockTime, Text::DateAndTime,
         Text::SkinColour, Text::Mouse, Text::Hertz, Text::Volts, Text::BbCodeFilter},
        {Text::Computer, Text::Processor, Text::Server, Text::Model, Text::Type, Text::Speed,
         Text::Socket, Text::Hertz, Text::Volts, Text::BbCodeFilter, Text::Contact, Text::Website}};
    const StringTable english = table_of(languages[0]);
    for (std::size_t i = 0; i < std::size(languages); ++i) {
        const StringTable table = table_of(languages[i]);
        EXPECT_EQ(differing(english, table, marks), Keys{}) << languages[i].name;
        EXPECT_EQ(differing(english, table, ending), other_ending[i]) << languages[i].name;
        for (const Text key : all_keys())
            EXPECT_EQ(table[key] == english[key],
                      i == 0 || shared[i].contains(key) || reserved.contains(key))
                << table[key];
    }
}

} // namespace
} // namespace ostrelum
