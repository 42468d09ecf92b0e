#pragma once

#include "sources/Value.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Reading WQL, the query language of the management service: `Select LIST from CLASS [where
/// CONDITION]`. Keywords and names match in any case of their letters.
namespace ostrelum::inline wql {

enum class Comparison { Equal, NotEqual, Less, LessOrEqual, Greater, GreaterOrEqual };

/// What the objects of a result must fulfil.
struct Condition {
    enum class Kind { Compare, And, Or, Not };

    Kind kind = Kind::Compare;
    /// Compare: the property and what it is compared with. A null literal is "Is Null" with Equal
    /// and "Is Not Null" with NotEqual.
    std::string property;
    Comparison comparison = Comparison::Equal;
    Value literal;
    /// Not: one; And, Or: two or more.
    std::vector<Condition> parts;

    bool operator==(const Condition&) const = default;
};

struct WqlQuery {
    /// As the query writes them; none for "*".
    std::vector<std::string> properties;
    std::string class_name;
    std::optional<Condition> condition;
};

/// Reads a query. Throws Failure for text that is none, and for parentheses and Nots more than
/// `wql_depth` deep.
WqlQuery parse_wql(std::string_view text);

inline constexpr int wql_depth = 64;

} // namespace ostrelum::inline wql
