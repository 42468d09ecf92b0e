#include "platform/wql/WqlCondition.h"

#include "platform/system/Failure.h"

#include <algorithm>
#include <compare>

namespace ostrelum::inline wql {
namespace {

Value typed_literal(const Value& literal, CimType type)
{
    if (literal.is_null())
        return literal;
    switch (type) {
    case CimType::Boolean: return literal.as_bool();
    case CimType::String:
    case CimType::DateTime: return literal.text();
    default: return literal.is_whole() ? literal : literal.number();
    }
}

/// By their bytes, so that characters beyond ASCII come behind it: whether a char has a sign
/// differs between processors.
std::partial_ordering compare_texts(std::string_view a, std::string_view b)
{
    const auto rank = [](char c) { return static_cast<unsigned char>(lower_ascii(c)); };
    return std::lexicographical_compare_three_way(
        a.begin(), a.end(), b.begin(), b.end(),
        [&](char x, char y) { return rank(x) <=> rank(y); });
}

std::partial_ordering compare_values(const Value& value, const Value& literal)
{
    if (literal.is_text())
        return compare_texts(value.text(), literal.text());
    if (literal.is_boolean())
        return value.as_bool() <=> literal.as_bool();
    return value.number() <=> literal.number();
}

bool fits(std::partial_ordering order, Comparison comparison)
{
    switch (comparison) {
    case Comparison::Equal: return std::is_eq(order);
    case Comparison::NotEqual: return std::is_neq(order);
    case Comparison::Less: return std::is_lt(order);
    case Comparison::LessOrEqual: return std::is_lteq(order);
    case Comparison::Greater: return std::is_gt(order);
    case Comparison::GreaterOrEqual: return std::is_gteq(order);
    }
    return false;
}

std::optional<bool> compared(const Condition& condition, const PropertyByName& property)
{
    const Value value = property(condition.property);
    if (condition.literal.is_null() && condition.comparison <= Comparison::NotEqual)
        return value.is_null() == (condition.comparison == Comparison::Equal);
    if (condition.literal.is_null() || value.is_null())
        return std::nullopt;
    return fits(compare_values(value, condition.literal), condition.comparison);
}

/// The parts up to the first one that decides: a false one for And, a true one for Or.
std::optional<bool> joined(const Condition& condition, const PropertyByName& property)
{
    const bool deciding = condition.kind == Condition::Kind::Or;
    std::optional<bool> result = !deciding;
    for (const Condition& part : condition.parts) {
        const auto truth = truth_of(part, property);
        if (truth == deciding)
            return deciding;
        if (!truth)
            result = std::nullopt;
    }
    return result;
}

} // namespace

Condition typed_condition(Condition condition, const ClassSchema& schema)
{
    for (Condition& part : condition.parts)
        part = typed_condition(std::move(part), schema);
    if (condition.kind == Condition::Kind::Compare) {
        const PropertySchema* property = find_named(schema.properties, condition.property);
        if (!property)
            throw Failure("no such property: " + condition.property);
        condition.literal = typed_literal(condition.literal, property->type);
    }
    return condition;
}

std::optional<bool> truth_of(const Condition& condition, const PropertyByName& property)
{
    switch (condition.kind) {
    case Condition::Kind::Compare: return compared(condition, property);
    case Condition::Kind::And:
    case Condition::Kind::Or: return joined(condition, property);
    case Condition::Kind::Not: break;
    }
    const auto denied = truth_of(condition.parts.front(), property);
    return denied ? std::optional(!*denied) : std::nullopt;
}

} // namespace ostrelum::inline wql
