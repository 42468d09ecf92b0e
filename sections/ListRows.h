#pragma once

#include "figures/Volumes.h"

#include <string>

namespace ostrelum::inline sections {

/// Sets a row to a list without the separator behind its last entry, as it is. A list without an
/// entry leaves the value that the row had, and its tooltip takes that.
void set_list_row(int row, const std::string& title, const std::string& list, std::size_t tail);

/// Sets rows 1 to 8 of a page of volumes from the lists of VolumeSlot, and gives the titles that
/// the summary page uses as headings their normal look back.
void set_volume_rows();

} // namespace ostrelum::inline sections
