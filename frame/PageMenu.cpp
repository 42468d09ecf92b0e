#include "figures/Platform.h"
#include "frame/F1Events.h"
#include "frame/MainForm.h"
#include "frame/PageTable.h"

/// The menu that a right click on the page brings up.
namespace ostrelum::inline frame {
namespace {

bool panel_on_show()
{
    const PageEntry* page = page_on_show();
    return page && page->is_panel();
}

bool can_copy(int row)
{
    const PageEntry* page = page_on_show();
    return !page || page->row_kind(row) == RowKind::Value;
}

void pop_up()
{
    // The keys copy the row that is chosen, or the page.
    (F1.Copy.Enabled ? F1.Copy : F1.CopyAll).Shortcut = "Ctrl+C";
    (F1.Copy.Enabled ? F1.CopyAll : F1.Copy).Shortcut.clear();
    platform.toolkit->popup(F1, F1.MenuCopy, std::nullopt, nullptr);
}

void Form_MouseDown(int button, int, int, int)
{
    if (button != right_button || panel_on_show() || media_missing())
        return;
    F1.Copy.Enabled = false;
    pop_up();
}

void TapaBorde_MouseDown(int button, int shift, int x, int y)
{
    Form_MouseDown(button, shift, x, y);
}

void LT_MouseDown(int index, int button, int, int, int)
{
    if (panel_on_show())
        return;
    platform.toolkit->SetFocus(F1, &F1.LT(index));
    if (button != right_button)
        return;
    F1.Copy.Enabled = can_copy(index);
    F1.CopyRow = static_cast<std::uint8_t>(index);
    pop_up();
}

void L_MouseDown(int index, int button, int shift, int x, int y)
{
    LT_MouseDown(index, button, shift, x, y);
}

constexpr Handler handlers[] = {
    OSTRELUM_ON(Form_MouseDown),
    OSTRELUM_ON(TapaBorde_MouseDown),
    OSTRELUM_ON(LT_MouseDown),
    OSTRELUM_ON(L_MouseDown),
};

} // namespace

const HandlerTable page_menu_handlers{handlers};

} // namespace ostrelum::inline frame
