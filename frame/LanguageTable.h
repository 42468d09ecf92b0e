#pragma once

#include "figures/StringTable.h"

#include <cstddef>
#include <span>
#include <string_view>

/// How a language's table is written: a row for each key of the string table that is in use.
namespace ostrelum::inline frame {

struct TextRow {
    Text key;
    std::string_view text;
};

constexpr bool is_reserved(std::size_t key)
{
    return key == 142 || key == 156 || key == 157;
}

/// Whether a table has each key in use exactly once, in rising order, and a text for it.
constexpr bool complete(std::span<const TextRow> table)
{
    std::size_t next = 1;
    for (const TextRow& row : table) {
        while (is_reserved(next))
            ++next;
        if (row.key != static_cast<Text>(next) || row.text.empty())
            return false;
        ++next;
    }
    return next == StringTable::last_key + 1;
}

/// Fills Trad from a table; the reserved keys become empty, and key 0 stays.
void set_texts(std::span<const TextRow> table);

} // namespace ostrelum::inline frame
