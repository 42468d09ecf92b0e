#pragma once

#include "platform/wql/Wql.h"
#include "sources/ManagementService.h"
#include "sources/Schema.h"
#include "sources/Value.h"

#include <cstddef>
#include <functional>

namespace ostrelum::inline wql {

/// Gives an object's property by its place in the schema.
using PropertyReader = std::function<Value(std::size_t index)>;
using ObjectVisitor = std::function<void(const PropertyReader& object)>;

/// Visits the objects of a class in its order, which does not change between queries. A property is
/// read when the visitor asks for it.
using ObjectSource = std::function<void(const ObjectVisitor& visit)>;

/// The objects of a class that a query takes, with the selected properties and the keys, in the
/// schema's order and spelling. Of each object only those and what the condition tests are read,
/// each at most once. Throws Failure for a property that the class does not have, whether there are
/// objects or not.
ResultSet run_query(const WqlQuery& query, const ClassSchema& schema, const ObjectSource& objects);

} // namespace ostrelum::inline wql
