#pragma once

/// The rows of the RAM page that are written anew while the page is open.
namespace ostrelum::inline sections {

/// Writes the values of row 4, memory in use, and of row 5, available memory, from the total Num1
/// and the free amount Num2, both in KB; without either they are unknown. A share that cannot be
/// worked out leaves its row as it was.
void set_memory_values();

} // namespace ostrelum::inline sections
