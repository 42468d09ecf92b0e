#include "platform/wql/Wql.h"

#include "platform/system/Failure.h"
#include "platform/wql/WqlWords.h"
#include "sources/Ascii.h"

#include <algorithm>
#include <array>

namespace ostrelum {
namespace {

/// What a comparison is called, and what it becomes when its sides change places.
struct ComparisonSign {
    std::string_view text;
    Comparison comparison;
    Comparison mirrored;
};

constexpr ComparisonSign comparison_signs[] = {
    {"=", Comparison::Equal, Comparison::Equal},
    {"<>", Comparison::NotEqual, Comparison::NotEqual},
    {"!=", Comparison::NotEqual, Comparison::NotEqual},
    {"<", Comparison::Less, Comparison::Greater},
    {"<=", Comparison::LessOrEqual, Comparison::GreaterOrEqual},
    {">", Comparison::Greater, Comparison::Less},
    {">=", Comparison::GreaterOrEqual, Comparison::LessOrEqual},
};

bool is_reserved(std::string_view name)
{
    constexpr std::array<std::string_view, 10> reserved = {
        "select", "from", "where", "and", "or", "not", "is", "null", "true", "false"};
    return std::ranges::any_of(
        reserved, [&](std::string_view word) { return same_ascii_letters(word, name); });
}

class Parser {
public:
    explicit Parser(std::string_view text) : words_(text) {}

    WqlQuery query()
    {
        WqlQuery result;
        need_keyword("select");
        if (!words_.take_sign("*")) {
            do
                result.properties.push_back(name());
            while (words_.take_sign(","));
        }
        need_keyword("from");
        result.class_name = name();
        if (words_.take_keyword("where"))
            result.condition = either(wql_depth);
        if (words_.next().kind != WqlWord::Kind::End)
            refuse_word(words_.next());
        return result;
    }

private:
    /// And binds closer than Or, Not closer than both.
    Condition either(int depth)
    {
        std::vector<Condition> parts;
        do
            parts.push_back(all(depth));
        while (words_.take_keyword("or"));
        return joined(Condition::Kind::Or, std::move(parts));
    }

    Condition all(int depth)
    {
        std::vector<Condition> parts;
        do
            parts.push_back(test(depth));
        while (words_.take_keyword("and"));
        return joined(Condition::Kind::And, std::move(parts));
    }

    Condition test(int depth)
    {
        if (depth == 0)
            throw Failure("the query is nested too deep");
        if (words_.take_keyword("not")) {
            Condition denied{.kind = Condition::Kind::Not};
            denied.parts.push_back(test(depth - 1));
            return denied;
        }
        if (!words_.take_sign("("))
            return comparison();
        Condition inner = either(depth - 1);
        if (!words_.take_sign(")"))
            refuse_word(words_.next());
        return inner;
    }

    /// A property and a literal, in either order.
    Condition comparison()
    {
        Condition result;
        if (const auto first = literal()) {
            result.literal = *first;
            result.comparison = sign().mirrored;
            result.property = name();
            return result;
        }
        result.property = name();
        if (words_.take_keyword("is")) {
            result.comparison =
                words_.take_keyword("not") ? Comparison::NotEqual : Comparison::Equal;
            need_keyword("null");
            return result;
        }
        result.comparison = sign().comparison;
        const auto second = literal();
        if (!second)
            refuse_word(words_.next());
        result.literal = *second;
        return result;
    }

    std::optional<Value> literal()
    {
        if (words_.next().kind == WqlWord::Kind::Literal)
            return words_.take().value;
        if (words_.take_keyword("true"))
            return true;
        if (words_.take_keyword("false"))
            return false;
        if (words_.take_keyword("null"))
            return Value();
        return std::nullopt;
    }

    const ComparisonSign& sign()
    {
        const WqlWord word = words_.take();
        for (const ComparisonSign& each : comparison_signs) {
            if (word.kind == WqlWord::Kind::Sign && word.text == each.text)
                return each;
        }
        refuse_word(word);
    }

    std::string name()
    {
        const WqlWord word = words_.take();
        if (word.kind != WqlWord::Kind::Name || is_reserved(word.text))
            refuse_word(word);
        return std::string(word.text);
    }

    void need_keyword(std::string_view keyword)
    {
        if (!words_.take_keyword(keyword))
            refuse_word(words_.next());
    }

    static Condition joined(Condition::Kind kind, std::vector<Condition> parts)
    {
        if (parts.size() == 1)
            return std::move(parts.front());
        return {.kind = kind, .parts = std::move(parts)};
    }

    WqlWords words_;
};

} // namespace

WqlQuery parse_wql(std::string_view text)
{
    return Parser(text).query();
}

} // namespace ostrelum
