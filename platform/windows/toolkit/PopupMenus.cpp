#include "platform/windows/toolkit/PopupMenus.h"

#include "platform/toolkit/ControlTree.h"
#include "platform/toolkit/Menus.h"
#include "platform/windows/services/Wide.h"
#include "platform/windows/toolkit/Captions.h"

namespace ostrelum::windows_platform {
namespace {

/// Of an entry: its place in the form, counted from 1, since 0 is no choice.
UINT number_of(int entry)
{
    return static_cast<UINT>(entry) + 1;
}

OwnedMenu make_menu(const Form& form, const MenuRequest& request)
{
    OwnedMenu shown(CreatePopupMenu());
    for (const int entry : entries_of(form, *request.menu)) {
        const auto* item = std::get<MenuItem*>(entry_at(form, entry).control);
        const UINT kind = is_separator(*item) ? MF_SEPARATOR : MF_STRING;
        // What stands behind a tabulator the system writes on the right.
        const std::string shortcut = item->Shortcut.empty() ? "" : "\t" + item->Shortcut;
        AppendMenuW(shown.get(), kind | (item->Enabled ? MF_ENABLED : MF_GRAYED), number_of(entry),
                    wide(without_mnemonics(item->Caption) + shortcut).c_str());
        // The system writes the default entry in bold letters.
        if (item == request.bold)
            SetMenuDefaultItem(shown.get(), number_of(entry), FALSE);
    }
    return shown;
}

} // namespace

std::optional<int> choose_from_menu(const Form& form, const MenuRequest& request, HWND window)
{
    const OwnedMenu shown = make_menu(form, request);
    const int chosen = TrackPopupMenu(shown.get(), TPM_RETURNCMD | TPM_LEFTALIGN | TPM_TOPALIGN,
                                      request.at.x, request.at.y, 0, window, nullptr);
    if (chosen <= 0)
        return std::nullopt;
    return chosen - 1;
}

} // namespace ostrelum::windows_platform
