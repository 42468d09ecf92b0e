#pragma once

#include <filesystem>
#include <system_error>

namespace ostrelum::linux_platform {

/// Visits at most `budget` entries of a folder until `visit` returns true; the budget goes down. A
/// folder that cannot be read has none.
template <class Visit>
bool any_entry(const std::filesystem::path& folder, int& budget, Visit&& visit)
{
    std::error_code error;
    std::filesystem::directory_iterator entry(folder, error);
    while (!error && entry != std::filesystem::directory_iterator() && budget-- > 0) {
        if (visit(*entry))
            return true;
        entry.increment(error);
    }
    return false;
}

} // namespace ostrelum::linux_platform
