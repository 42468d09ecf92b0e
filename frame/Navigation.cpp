#include "frame/Navigation.h"

#include "figures/Platform.h"
#include "frame/F1Events.h"
#include "frame/MainForm.h"
#include "frame/Page.h"
#include "frame/PageTable.h"
#include "skin/Skin.h"

#include <utility>

namespace ostrelum::inline frame {
namespace {

/// The column's rows: where the first begins, and how high each is, in pixels.
constexpr int first_row_top = 49;
constexpr int row_height = 35;
/// The options tab at the top of the column.
constexpr int tab_width = 135;
constexpr int tab_height = 31;

/// The row of the column at a height; 0 above and below the rows.
int row_at(int y)
{
    if (y < first_row_top || y >= first_row_top + row_height * section_count)
        return 0;
    return (y - first_row_top) / row_height + 1;
}

bool in_tab(int x, int y)
{
    return x < tab_width && y < tab_height;
}

void collect(int index)
{
    const PageEntry& page = *find_page(static_cast<std::uint8_t>(index));
    F1.BM.Top = first_row_top + row_height * (index - 1);
    F1.LMenu2.Caption = Trad[page.title];
    F1.BM.Visible = true;
    for (int n = 1; n <= section_count; ++n)
        F1.LMenu(n).Chosen = n == index;
    page.collect();
}

void S_MouseDown(int index, int button, int shift, int x, int y)
{
    const int row = row_at(y);
    if (index == 1 && row != 0)
        LMenu_MouseDown(row, button, shift, x, y);
}

void LOpc_MouseUp(int button, int, int, int)
{
    if (button == left_button)
        show_options();
}

void MenuLogo_MouseUp(int button, int shift, int x, int y)
{
    LOpc_MouseUp(button, shift, x, y);
}

void S_MouseUp(int index, int button, int shift, int x, int y)
{
    if (index == 1 && button == left_button && in_tab(x, y))
        LOpc_MouseUp(button, shift, x, y);
}

void S_MouseMove(int index, int, int, int x, int y)
{
    if (index != 1)
        return;
    const bool active = !F1.PanelOpen && (in_tab(x, y) || row_at(y) != 0);
    F1.S(1).MousePointer = active ? MouseCursor::Hand : MouseCursor::Arrow;
}

void LMenu2_Click()
{
    LMenu_MouseDown(F1.Seccion, left_button, 0, 0, 0);
}

void BM_Click()
{
    LMenu2_Click();
}

/// `live` tells whether a press opens something: only then does the keyboard stop there.
void set_navigation(bool live, Colour options, Colour names, MouseCursor cursor)
{
    F1.LOpc.TabStop = live;
    F1.LOpc.ForeColor = options;
    F1.LMenu2.ForeColor = names;
    F1.LOpc.MousePointer = F1.MenuLogo.MousePointer = cursor;
    F1.BM.MousePointer = F1.LMenu2.MousePointer = cursor;
    for (int n = 1; n <= section_count; ++n) {
        F1.LMenu(n).ForeColor = names;
        F1.LMenu(n).MousePointer = cursor;
        F1.LMenu(n).TabStop = live;
    }
}

constexpr Handler handlers[] = {
    OSTRELUM_ON(LMenu_MouseDown), OSTRELUM_ON(S_MouseDown),      OSTRELUM_ON(S_MouseUp),
    OSTRELUM_ON(S_MouseMove),     OSTRELUM_ON(LMenu2_Click),     OSTRELUM_ON(BM_Click),
    OSTRELUM_ON(LOpc_MouseUp),    OSTRELUM_ON(MenuLogo_MouseUp),
};

} // namespace

const HandlerTable navigation_handlers{handlers};

void LMenu_MouseDown(int index, int button, int, int, int)
{
    if (button == right_button || button == middle_button || F1.PanelOpen)
        return;
    platform.toolkit->set_screen_cursor(MouseCursor::Hourglass);
    F1.BM.Visible = false;
    if (index >= 1 && index <= section_count)
        collect(index);
    platform.toolkit->set_screen_cursor(MouseCursor::Default);
    F1.Labelmi.Caption = Trad[Text::Done];
    platform.toolkit->Refresh(F1);
    platform.toolkit->announce(F1, F1.Titulo.Caption + ". " + F1.Labelmi.Caption);
    start_cross_fade();
}

void collect_anew()
{
    if (!F1.PanelOpen)
        LMenu_MouseDown(std::exchange(F1.Seccion, std::uint8_t{0}), left_button, 0, 0, 0);
}

void show_options()
{
    if (!F1.PanelOpen)
        platform.toolkit->popup(F1, F1.MenuOps, Point{25, 14}, &F1.Quit);
}

void open_panel(std::uint8_t panel)
{
    F1.Timer1.Enabled = false;
    F1.PanelOpen = true;
    F1.SeccionPrev = F1.Seccion;
    F1.Seccion = panel;
    LockMenu();
    ClearPage();
    start_cross_fade();
}

void ClearPage()
{
    empty_rows(1, 12);
    clear_title_tooltips(1, 12);
    hide(F1.LNoDrive, F1.Line1, F1.Iaviso, F1.Laviso, F1.LineInf);
    F1.Labelmi.Caption.clear();
    platform.toolkit->Refresh(F1);
}

void LockMenu()
{
    set_navigation(false, rgb(215, 215, 215), rgb(215, 215, 215), MouseCursor::Arrow);
}

void UnlockMenu()
{
    set_navigation(true, rgb(250, 250, 250), white, MouseCursor::Hand);
}

} // namespace ostrelum::inline frame
