#pragma once

#include <cstdint>

namespace ostrelum::inline frame {

/// Opens a section: the one entry for it. The right and the middle button, and an open panel, make
/// it do nothing. An index outside 1 to 13 collects nothing, but ends as any opening does.
void LMenu_MouseDown(int index, int button, int shift, int x, int y);

/// Collects the open section anew, as a visit from another section does: pressing its name again
/// leaves a disc's values as they are.
void collect_anew();

/// Brings up the menu of the options, but not over an open panel.
void show_options();

/// Lays a panel, CustomisePanel or AboutPanel, over the page: nothing refreshes it any more, the
/// navigation is locked, the page emptied, and its picture crosses over to the panel's.
void open_panel(std::uint8_t panel);

/// Empties the page for a panel.
void ClearPage();

/// Greys the navigation while a panel is open, and gives it back.
void LockMenu();
void UnlockMenu();

} // namespace ostrelum::inline frame
