#include "figures/Platform.h"
#include "frame/F1Events.h"
#include "frame/MainForm.h"
#include "frame/Navigation.h"
#include "frame/PageTable.h"

/// What keys do wherever the focus is.
namespace ostrelum::inline frame {
namespace {

void choose(std::string_view entry)
{
    F1.raise(entry, {.kind = EventKind::Click});
}

void copy_page()
{
    const PageEntry* page = page_on_show();
    if (page && !page->is_panel() && !media_missing())
        choose("CopyAll");
}

void Form_KeyDown(Key key, int shift)
{
    if (key == Key::F5 && shift == 0)
        collect_anew();
    else if (key == Key::F10 && shift == 0)
        show_options();
    else if (key == Key::Q && shift == control_key)
        choose("Quit");
    else if (key == Key::C && shift == control_key)
        copy_page();
}

/// Of the keys one is for the row: it copies what can be copied alone.
void LT_KeyDown(int index, Key key, int shift)
{
    const PageEntry* page = page_on_show();
    if (key != Key::C || shift != control_key || !page || page->row_kind(index) != RowKind::Value) {
        Form_KeyDown(key, shift);
        return;
    }
    F1.CopyRow = static_cast<std::uint8_t>(index);
    choose("Copy");
}

constexpr Handler handlers[] = {OSTRELUM_ON(Form_KeyDown), OSTRELUM_ON(LT_KeyDown)};

} // namespace

const HandlerTable shortcut_handlers{handlers};

} // namespace ostrelum::inline frame
