#include "platform/windows/services/Wide.h"
#include "platform/windows/toolkit/PaintedControls.h"
#include "tests/platform/windows/toolkit/WindowsDriver.h"

#include <commctrl.h>

/// What the user of the windows sees.
namespace ostrelum::windows_platform {

using namespace conformance;

bool WindowsDriver::is_on_screen(const Form& form) const
{
    const FormWindow* shown = toolkit_.window_of(form);
    return shown && IsWindowVisible(shown->handle());
}

std::string WindowsDriver::title(const Form& form) const
{
    return text_of(window(form).handle());
}

Point WindowsDriver::size(const Form& form) const
{
    RECT client{};
    GetClientRect(window(form).handle(), &client);
    return {client.right, client.bottom};
}

int WindowsDriver::opacity(const Form& form) const
{
    BYTE alpha = 255;
    DWORD flags = 0;
    const bool told =
        GetLayeredWindowAttributes(window(form).handle(), nullptr, &alpha, &flags) != 0;
    return told && (flags & LWA_ALPHA) != 0 ? alpha : 255;
}

Look WindowsDriver::look(const Form& form, int control) const
{
    const FormWindow& shown = window(form);
    const HWND child = shown.window(control);
    Look look = look_of(child);
    RECT place{};
    GetWindowRect(child, &place);
    MapWindowPoints(nullptr, GetParent(child), reinterpret_cast<POINT*>(&place), 2);
    auto* const* label = std::get_if<Label*>(&entry_at(form, control).control);
    if (label && sizes_itself(**label) && !(*label)->Caption.empty())
        place.right -= shown.scale().to_screen(LabelWindow::reach);
    look.area = {place.left, place.top, width_of(place), height_of(place)};
    const int holder = entry_at(form, control).container;
    const MouseCursor cursor = shown.cursor_over(control);
    look.cursor = cursor == shown.cursor_over(holder) ? MouseCursor::Default : cursor;

    wchar_t tip[256]{};
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    tool.hwnd = shown.handle();
    tool.uId = reinterpret_cast<UINT_PTR>(child);
    tool.lpszText = tip;
    SendMessageW(shown.tooltips().window(), TTM_GETTEXTW, std::size(tip),
                 reinterpret_cast<LPARAM>(&tool));
    look.tooltip = narrow(tip);
    return look;
}

std::vector<MenuEntry> WindowsDriver::menu() const
{
    constexpr UINT get_menu_of_window = 0x01E1;
    const HWND shown = EventFiber::menu();
    if (!shown)
        return {};
    return entries_of(reinterpret_cast<HMENU>(SendMessageW(shown, get_menu_of_window, 0, 0)));
}

std::optional<Point> WindowsDriver::menu_place(const Form& form) const
{
    RECT place{};
    GetWindowRect(EventFiber::menu(), &place);
    POINT at{place.left, place.top};
    ScreenToClient(window(form).handle(), &at);
    return Point{at.x, at.y};
}

MouseCursor WindowsDriver::screen_cursor() const
{
    for (const MouseCursor cursor : {MouseCursor::Hourglass, MouseCursor::Hand}) {
        if (GetCursor() == toolkit_.cursors().get(cursor))
            return cursor;
    }
    return MouseCursor::Default;
}

} // namespace ostrelum::windows_platform
