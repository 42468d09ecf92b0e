#pragma once

namespace ostrelum {

/// Opens a section: the one entry for it. The right and the middle button, and an open panel, make
/// it do nothing. An index outside 1 to 13 collects nothing, but ends as any opening does.
void LMenu_MouseDown(int index, int button, int shift, int x, int y);

/// Empties the page for a panel.
void ClearPage();

/// Greys the navigation while a panel is open, and gives it back.
void LockMenu();
void UnlockMenu();

} // namespace ostrelum
