#pragma once

#include "platform/wql/Wql.h"
#include "sources/Schema.h"

#include <functional>
#include <optional>
#include <string_view>

/// Deciding which objects a query's condition takes.
namespace ostrelum::inline wql {

/// The condition with each literal in the kind of its property: numbers for numbers, whatever
/// quotes the query puts round them. Throws Failure for a property that the class does not have and
/// a literal that its kind cannot hold.
Condition typed_condition(Condition condition, const ClassSchema& schema);

/// Gives an object's property by the name that the condition has for it.
using PropertyByName = std::function<Value(std::string_view name)>;

/// Whether an object fulfils a typed condition. A null compares with nothing: neither the
/// comparison nor its opposite holds, and the result is nothing where that decides. Text compares
/// without regard to ASCII case. Properties behind the deciding part are not asked for.
std::optional<bool> truth_of(const Condition& condition, const PropertyByName& property);

} // namespace ostrelum::inline wql
