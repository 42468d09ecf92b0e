#include "platform/linux/formats/MemoryInfo.h"

#include "platform/linux/text/Text.h"

namespace ostrelum::linux_platform {
namespace {

std::optional<std::uint64_t> kilobytes(std::string_view text, std::string_view label)
{
    const auto words = words_of(value_behind(text, label, ':').value_or(""));
    return words.empty() ? std::nullopt : whole_number(words.front());
}

/// For kernels before 3.14, which do not add it up themselves.
std::optional<std::uint64_t> free_and_cached(std::string_view text)
{
    auto sum = kilobytes(text, "MemFree");
    for (const char* label : {"Buffers", "Cached"}) {
        if (sum)
            sum = sum_of(*sum, kilobytes(text, label).value_or(0));
    }
    return sum;
}

} // namespace

MemoryInfo parse_meminfo(std::string_view text)
{
    const auto available = kilobytes(text, "MemAvailable");
    return {.total = kilobytes(text, "MemTotal"),
            .available = available ? available : free_and_cached(text),
            .swap_total = kilobytes(text, "SwapTotal"),
            .swap_free = kilobytes(text, "SwapFree")};
}

} // namespace ostrelum::linux_platform
