#pragma once

#include "figures/Shared.h"

#include <string_view>

/// The pass-over rule: nothing that fails reaches the user. A statement that fails has no effect of
/// its own and the next one runs. These helpers are the only places of the program's logic that
/// catch a Failure.
namespace ostrelum::inline figures {

/// Runs one statement. True if it went through.
template <class Statement>
bool attempt(Statement&& statement)
{
    try {
        statement();
        return true;
    } catch (const Failure&) {
        return false;
    }
}

/// Runs a test. A test that fails counts as held.
template <class Test>
bool holds(Test&& test)
{
    bool held = true;
    attempt([&] { held = test(); });
    return held;
}

/// Sends a query. A query that fails leaves an empty result, so that its walk yields nothing.
inline void query(std::string_view wql)
{
    WmiResult.clear();
    attempt([&] { WmiResult = WmiService->ExecQuery(wql); });
}

/// Walks the objects in the service's order until `body` has seen one for which it returns true.
template <class Body>
void first_match(const ResultSet& result, Body&& body)
{
    for (const Instance& item : result) {
        WmiItem = item;
        if (body(WmiItem))
            return;
    }
}

/// Walks all objects in the service's order.
template <class Body>
void each(const ResultSet& result, Body&& body)
{
    first_match(result, [&](const Instance& item) {
        body(item);
        return false;
    });
}

/// Walks to the first object alone.
template <class Body>
void first(const ResultSet& result, Body&& body)
{
    first_match(result, [&](const Instance& item) {
        body(item);
        return true;
    });
}

} // namespace ostrelum::inline figures
