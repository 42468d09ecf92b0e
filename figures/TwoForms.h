#pragma once

#include "figures/PassOver.h"

#include <span>
#include <string_view>

namespace ostrelum::inline figures {

/// A statement of a walk over one object.
using Statement = void (*)(const Instance& item);

/// Sends the long form of a query, which asks for a property that not every system has, and runs
/// the statements on its first object. The first failure gives the long form up: the short form is
/// sent and walked from the first statement on, and a statement that fails there is passed over.
/// TempStr is "1" for the long form and "0" for the short one. True if nothing failed in the form
/// that was used last.
bool read_long_or_short(std::string_view long_form, std::string_view short_form,
                        std::span<const Statement> statements);

} // namespace ostrelum::inline figures
