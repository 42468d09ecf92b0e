#pragma once

/// The settings that outlive the program, read at start one by one. A value that is missing,
/// unreadable or out of its range is replaced by its default, in memory and in the store.
namespace ostrelum {

void read_language();
void read_colour();
void read_shine();
void read_transparency_switch();
void read_transparency();

} // namespace ostrelum
