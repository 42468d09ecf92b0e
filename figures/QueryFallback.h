#pragma once

#include "figures/PassOver.h"

#include <span>
#include <string_view>

namespace ostrelum::inline figures {

/// The query that gave an object: the full one, or the reduced one without the property that not
/// every system has.
enum class QueryForm { Full, Reduced };

/// A statement of a walk over one object.
using Statement = void (*)(const Instance& item, QueryForm form);

/// Sends the full query and runs the statements on its first object. The first failure gives it up:
/// the reduced query is sent and walked from the first statement on, and a statement that fails
/// there is passed over. True if nothing failed in the query that was sent last.
bool read_with_fallback(std::string_view full_query, std::string_view reduced_query,
                        std::span<const Statement> statements);

} // namespace ostrelum::inline figures
