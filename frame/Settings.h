#pragma once

#include <cstdint>

/// The settings that outlive the program, read at start one by one. A value that is missing,
/// unreadable or out of its range is replaced by its default, in memory and in the store.
namespace ostrelum::inline frame {

void read_language();
void read_colour();
void read_shine();
void read_transparency_switch();
void read_transparency();

/// Position of the colour slider, 0 to 210. It is not read at start: the store gets it when the
/// customise panel first opens.
std::int32_t read_hue();

/// Writes what differs from how it stood when the customise panel opened.
void write_changed_settings();

} // namespace ostrelum::inline frame
