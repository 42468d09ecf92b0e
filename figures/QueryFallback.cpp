#include "figures/QueryFallback.h"

namespace ostrelum::inline figures {
namespace {

void read_full(std::string_view wql, std::span<const Statement> statements)
{
    WmiResult.clear();
    WmiResult = WmiService->ExecQuery(wql);
    first(WmiResult, [&](const Instance& item) {
        for (const Statement statement : statements)
            statement(item, QueryForm::Full);
    });
}

bool read_reduced(std::string_view wql, std::span<const Statement> statements)
{
    WmiResult.clear();
    bool all = attempt([&] { WmiResult = WmiService->ExecQuery(wql); });
    first(WmiResult, [&](const Instance& item) {
        for (const Statement statement : statements)
            all &= attempt([&] { statement(item, QueryForm::Reduced); });
    });
    return all;
}

} // namespace

bool read_with_fallback(std::string_view full_query, std::string_view reduced_query,
                        std::span<const Statement> statements)
{
    return attempt([&] { read_full(full_query, statements); }) ||
           read_reduced(reduced_query, statements);
}

} // namespace ostrelum::inline figures
