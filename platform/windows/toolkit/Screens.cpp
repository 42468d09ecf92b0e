#include "platform/windows/toolkit/Screens.h"

#include <algorithm>

namespace ostrelum::windows_platform {
namespace {

using DpiForWindow = UINT(WINAPI*)(HWND);
using DpiForMonitor = HRESULT(WINAPI*)(HMONITOR, int, UINT*, UINT*);
using AdjustForDpi = BOOL(WINAPI*)(RECT*, DWORD, BOOL, DWORD, UINT);

/// A function that not every Windows has; nullptr there.
template <class Function>
Function found(const wchar_t* library, const char* name)
{
    const HMODULE module = LoadLibraryExW(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    const FARPROC address = module ? GetProcAddress(module, name) : nullptr;
    return reinterpret_cast<Function>(reinterpret_cast<void*>(address));
}

Scale scale_of_all()
{
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return {dpi > 0 ? dpi : USER_DEFAULT_SCREEN_DPI};
}

} // namespace

Scale scale_of_window(HWND window)
{
    static const auto dpi_for_window = found<DpiForWindow>(L"user32.dll", "GetDpiForWindow");
    const UINT dpi = dpi_for_window ? dpi_for_window(window) : 0;
    return dpi > 0 ? Scale{static_cast<int>(dpi)}
                   : scale_of_screen(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST));
}

Scale scale_of_screen(HMONITOR screen)
{
    constexpr int effective_dpi = 0;
    static const auto dpi_for_monitor = found<DpiForMonitor>(L"shcore.dll", "GetDpiForMonitor");
    UINT across = 0;
    UINT down = 0;
    if (dpi_for_monitor && SUCCEEDED(dpi_for_monitor(screen, effective_dpi, &across, &down)) &&
        across > 0)
        return {static_cast<int>(across)};
    return scale_of_all();
}

SIZE size_with_frame(SIZE client, DWORD style, DWORD extended_style, Scale scale)
{
    static const auto adjust = found<AdjustForDpi>(L"user32.dll", "AdjustWindowRectExForDpi");
    RECT whole{0, 0, client.cx, client.cy};
    if (!adjust || !adjust(&whole, style, FALSE, extended_style, static_cast<UINT>(scale.dpi)))
        AdjustWindowRectEx(&whole, style, FALSE, extended_style);
    return {width_of(whole), height_of(whole)};
}

RECT free_part_of(HMONITOR screen)
{
    MONITORINFO about{};
    about.cbSize = sizeof about;
    GetMonitorInfoW(screen, &about);
    return about.rcWork;
}

Scale fitting_scale(Scale of_screen, HMONITOR screen, SIZE form)
{
    // Pictures are sharp at quarters; with fewer pixels to the inch the smallest letters, 11 pixels
    // high, could not be read.
    constexpr int quarter = USER_DEFAULT_SCREEN_DPI / 4;
    constexpr int smallest = USER_DEFAULT_SCREEN_DPI * 6 / 10;
    const RECT free = free_part_of(screen);
    if (form.cx <= 0 || form.cy <= 0 || IsRectEmpty(&free))
        return of_screen;
    const SIZE frame = size_with_frame({}, WS_CAPTION | WS_SYSMENU, 0, of_screen);
    const int most = std::min((width_of(free) - frame.cx) * USER_DEFAULT_SCREEN_DPI / form.cx,
                              (height_of(free) - frame.cy) * USER_DEFAULT_SCREEN_DPI / form.cy);
    const int drawable =
        most >= USER_DEFAULT_SCREEN_DPI ? most / quarter * quarter : std::max(most, smallest);
    return {std::min(of_screen.dpi, drawable)};
}

} // namespace ostrelum::windows_platform
