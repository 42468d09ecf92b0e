#include "platform/wql/Wql.h"

#include "platform/system/Failure.h"
#include "platform/wql/WqlLexer.h"
#include "sources/Ascii.h"

#include <algorithm>
#include <array>

namespace ostrelum::inline wql {
namespace {

/// How a comparison is written, and what it becomes when its sides change places.
struct ComparisonOperator {
    std::string_view text;
    Comparison comparison;
    Comparison mirrored;
};

constexpr ComparisonOperator comparison_operators[] = {
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
    explicit Parser(std::string_view text) : lexer_(text) {}

    WqlQuery query()
    {
        WqlQuery result;
        need_keyword("select");
        if (!lexer_.take_symbol("*")) {
            do
                result.properties.push_back(name());
            while (lexer_.take_symbol(","));
        }
        need_keyword("from");
        result.class_name = name();
        if (lexer_.take_keyword("where"))
            result.condition = either(wql_depth);
        if (lexer_.next().kind != WqlToken::Kind::End)
            refuse_token(lexer_.next());
        return result;
    }

private:
    /// And binds closer than Or, Not closer than both.
    Condition either(int depth)
    {
        std::vector<Condition> parts;
        do
            parts.push_back(all(depth));
        while (lexer_.take_keyword("or"));
        return joined(Condition::Kind::Or, std::move(parts));
    }

    Condition all(int depth)
    {
        std::vector<Condition> parts;
        do
            parts.push_back(test(depth));
        while (lexer_.take_keyword("and"));
        return joined(Condition::Kind::And, std::move(parts));
    }

    Condition test(int depth)
    {
        if (depth == 0)
            throw Failure("the query is nested too deep");
        if (lexer_.take_keyword("not")) {
            Condition denied{.kind = Condition::Kind::Not};
            denied.parts.push_back(test(depth - 1));
            return denied;
        }
        if (!lexer_.take_symbol("("))
            return comparison();
        Condition inner = either(depth - 1);
        if (!lexer_.take_symbol(")"))
            refuse_token(lexer_.next());
        return inner;
    }

    /// A property and a literal, in either order.
    Condition comparison()
    {
        Condition result;
        if (const auto first = literal()) {
            result.literal = *first;
            result.comparison = comparison_operator().mirrored;
            result.property = name();
            return result;
        }
        result.property = name();
        if (lexer_.take_keyword("is")) {
            result.comparison =
                lexer_.take_keyword("not") ? Comparison::NotEqual : Comparison::Equal;
            need_keyword("null");
            return result;
        }
        result.comparison = comparison_operator().comparison;
        const auto second = literal();
        if (!second)
            refuse_token(lexer_.next());
        result.literal = *second;
        return result;
    }

    std::optional<Value> literal()
    {
        if (lexer_.next().kind == WqlToken::Kind::Literal)
            return lexer_.take().value;
        if (lexer_.take_keyword("true"))
            return true;
        if (lexer_.take_keyword("false"))
            return false;
        if (lexer_.take_keyword("null"))
            return Value();
        return std::nullopt;
    }

    const ComparisonOperator& comparison_operator()
    {
        const WqlToken token = lexer_.take();
        for (const ComparisonOperator& each : comparison_operators) {
            if (token.kind == WqlToken::Kind::Symbol && token.text == each.text)
                return each;
        }
        refuse_token(token);
    }

    std::string name()
    {
        const WqlToken token = lexer_.take();
        if (token.kind != WqlToken::Kind::Name || is_reserved(token.text))
            refuse_token(token);
        return std::string(token.text);
    }

    void need_keyword(std::string_view keyword)
    {
        if (!lexer_.take_keyword(keyword))
            refuse_token(lexer_.next());
    }

    static Condition joined(Condition::Kind kind, std::vector<Condition> parts)
    {
        if (parts.size() == 1)
            return std::move(parts.front());
        return {.kind = kind, .parts = std::move(parts)};
    }

    WqlLexer lexer_;
};

} // namespace

WqlQuery parse_wql(std::string_view text)
{
    return Parser(text).query();
}

} // namespace ostrelum::inline wql
