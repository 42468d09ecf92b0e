#include "platform/wql/Wql.h"

#include "platform/system/Failure.h"
#include "tests/Split.h"

#include <gtest/gtest.h>

namespace ostrelum {
namespace {

std::string shown(const Value& literal)
{
    if (literal.is_null())
        return "null";
    return literal.is_text() ? "'" + literal.text() + "'" : literal.text();
}

/// The condition with all its parentheses.
std::string shown(const Condition& condition)
{
    constexpr const char* operators[] = {"=", "<>", "<", "<=", ">", ">="};
    if (condition.kind == Condition::Kind::Compare)
        return condition.property + operators[static_cast<int>(condition.comparison)] +
               shown(condition.literal);
    if (condition.kind == Condition::Kind::Not)
        return "!" + shown(condition.parts.at(0));
    std::string text = "(" + shown(condition.parts.at(0));
    for (std::size_t i = 1; i < condition.parts.size(); ++i)
        text += (condition.kind == Condition::Kind::And ? "&" : "|") + shown(condition.parts[i]);
    return text + ")";
}

TEST(Wql, ReadsConditions)
{
    const std::pair<const char*, const char*> cases[] = {
        {"DriveType = 3", "DriveType=3"},
        {"a=1 or b<>2 and c!=3", "(a=1|(b<>2&c<>3))"},
        {"(a=1 OR b<2) aNd c<=3", "((a=1|b<2)&c<=3)"},
        {"not a>1 and Not (b>=2 or not c=3)", "(!a>1&!(b>=2|!c=3))"},
        {"((a=1))", "a=1"},
        {"a Is Null or b is NOT null or c = Null", "(a=null|b<>null|c=null)"},
        {"a = True and b = fAlse", "(a=True&b=False)"},
        {"5 < a and 'x' = b", "(a>5&b='x')"},
        {"a = -7 and b = +7 and c = 1.5e3", "(a=-7&b=7&c=1500)"},
        {R"(a = 'it\'s "C:\\"')", R"(a='it's "C:\"')"},
        {"a = \"it's\"", "a='it's'"},
        {"a = ''", "a=''"},
        {"a = 18446744073709551616", "a=18446744073709551616"},
    };
    for (const auto& [text, expected] : cases) {
        const std::string query = std::string("Select * from C where ") + text;
        EXPECT_EQ(shown(*parse_wql(query).condition), expected) << text;
    }
}

TEST(Wql, RefusesWhatIsNoQuery)
{
    std::vector<std::string> cases =
        split("| |Select|Select from C|Select a, from C|Select a b from C|Select *, a from C|"
              "Select a from|Select a from C where|Select a from C a = 1|Select a from where a = 1|"
              "Select a from 'C'|Update C|Select a from C;|Select \xC3\xA9 from C");
    for (const std::string& condition :
         split("a|a =|a = b|a == 1|a = 1 and|a = 1 2|(a = 1|a = 1)|()|a Is 1|a Is Not|a = 'x|"
               "a = \"x'|a = 'x\\'|a = 'x\\|a = 12x|a = 1e999999|a = -"))
        cases.push_back("Select a from C where " + condition);
    cases.emplace_back("Select a from C\0", 16);
    for (const std::string& text : cases)
        EXPECT_THROW(parse_wql(text), Failure) << text;
}

std::string repeated(const std::string& text, int count)
{
    std::string all;
    for (int i = 0; i < count; ++i)
        all += text;
    return all;
}

TEST(Wql, TellsTooDeepFromLong)
{
    const std::string start = "Select * from C where ";
    EXPECT_NO_THROW(parse_wql(start + repeated("(", 60) + "a=1" + repeated(")", 60)));
    EXPECT_THROW(parse_wql(start + repeated("(", 65536) + "a=1" + repeated(")", 65536)), Failure);
    EXPECT_THROW(parse_wql(start + repeated("not ", 65536) + "a=1"), Failure);
    EXPECT_EQ(parse_wql(start + repeated("a=1 or ", 9362) + "a=2").condition->parts.size(), 9363U);
    EXPECT_EQ(parse_wql("Select " + repeated("a,", 32768) + "a from C").properties.size(), 32769U);
    EXPECT_EQ(
        parse_wql(start + "a='" + repeated("\\'", 32768) + "'").condition->literal.text().size(),
        32768U);
    for (const char* bad : {"x", "'", "\"", "(", "\\", "-", "9", "\xFF", "<"})
        EXPECT_THROW(parse_wql(start + repeated(bad, 65536)), Failure) << bad;
}

} // namespace
} // namespace ostrelum
