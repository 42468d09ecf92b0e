#pragma once

#include "figures/Text.h"

#include <array>
#include <cstddef>
#include <string>

namespace ostrelum::inline figures {

/// Every text that the user sees, by key, in the language of the last routine called; UTF-8, and
/// nothing that the ANSI code page of a saved report could not hold. A text with "(#)", "(1)" to
/// "(4)", "(HHMMSS)" or "(DDMMYYYY)" is a template: whoever uses it fills a copy.
class StringTable {
public:
    static constexpr std::size_t last_key = 186;

    std::string& operator[](Text key) { return texts_.at(static_cast<std::size_t>(key)); }
    const std::string& operator[](Text key) const
    {
        return texts_.at(static_cast<std::size_t>(key));
    }

private:
    std::array<std::string, last_key + 1> texts_;
};

} // namespace ostrelum::inline figures
