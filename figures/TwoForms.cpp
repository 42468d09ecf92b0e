#include "figures/TwoForms.h"

namespace ostrelum::inline figures {
namespace {

void read_long(std::string_view form, std::span<const Statement> statements)
{
    TempStr = "1";
    WmiResult.clear();
    WmiResult = WmiService->ExecQuery(form);
    first(WmiResult, [&](const Instance& item) {
        for (const Statement statement : statements)
            statement(item);
    });
}

bool read_short(std::string_view form, std::span<const Statement> statements)
{
    TempStr = "0";
    WmiResult.clear();
    bool all = attempt([&] { WmiResult = WmiService->ExecQuery(form); });
    first(WmiResult, [&](const Instance& item) {
        for (const Statement statement : statements)
            all &= attempt([&] { statement(item); });
    });
    return all;
}

} // namespace

bool read_long_or_short(std::string_view long_form, std::string_view short_form,
                        std::span<const Statement> statements)
{
    return attempt([&] { read_long(long_form, statements); }) || read_short(short_form, statements);
}

} // namespace ostrelum::inline figures
