#include "platform/windows/toolkit/FocusFrame.h"

#include "platform/windows/toolkit/Drawing.h"
#include "platform/windows/toolkit/Screens.h"

#include <commctrl.h>

#include <algorithm>

namespace ostrelum::windows_platform {
namespace {

/// Pixels of the form between the control and the frame's outer edge, and how thick each of its two
/// lines is.
constexpr int margin = 4;
constexpr int line = 1;
constexpr UINT_PTR own_subclass = 1;

RECT shrunk(RECT place, int by)
{
    InflateRect(&place, -by, -by);
    return place;
}

/// A light and a dark line: one of them shows on any ground.
void paint(HWND window)
{
    PAINTSTRUCT about{};
    const HDC dc = BeginPaint(window, &about);
    RECT place{};
    GetClientRect(window, &place);
    fill(dc, place, white);
    fill(dc, shrunk(place, std::max(1, scale_of_window(window).to_screen(line))), rgb(0, 0, 0));
    EndPaint(window, &about);
}

/// The frame alone is the window: what it goes round stays to be seen.
void cut_out(HWND window, const RECT& place, int thickness)
{
    const RECT outer{0, 0, width_of(place), height_of(place)};
    const RECT inner = shrunk(outer, thickness);
    const HRGN frame = CreateRectRgnIndirect(&outer);
    const OwnedHandle<HRGN, ReleaseDrawing> hole(CreateRectRgnIndirect(&inner));
    CombineRgn(frame, frame, hole.get(), RGN_DIFF);
    // The system keeps it from here on.
    SetWindowRgn(window, frame, TRUE);
}

} // namespace

FocusFrame::FocusFrame(HWND form)
    : window_(CreateWindowExW(0, WC_STATICW, L"", WS_CHILD | WS_CLIPSIBLINGS, 0, 0, 0, 0, form,
                              nullptr, GetModuleHandleW(nullptr), nullptr))
{
    SetWindowSubclass(window_.get(), receive, own_subclass, 0);
}

void FocusFrame::follow(HWND control, RECT place, Scale scale)
{
    if (!control || !IsWindowVisible(control)) {
        if (std::exchange(followed_, nullptr))
            ShowWindow(window_.get(), SW_HIDE);
        return;
    }
    place = shrunk(place, -scale.to_screen(margin));
    if (followed_ == control && EqualRect(&place, &place_))
        return;
    followed_ = control;
    place_ = place;
    cut_out(window_.get(), place, 2 * std::max(1, scale.to_screen(line)));
    SetWindowPos(window_.get(), HWND_TOP, place.left, place.top, width_of(place), height_of(place),
                 SWP_NOACTIVATE | SWP_SHOWWINDOW | SWP_NOCOPYBITS);
}

LRESULT CALLBACK FocusFrame::receive(HWND window, UINT number, WPARAM first, LPARAM second,
                                     UINT_PTR, DWORD_PTR)
{
    switch (number) {
    case WM_NCHITTEST: return HTTRANSPARENT;
    case WM_ERASEBKGND: return TRUE;
    case WM_PAINT: paint(window); return 0;
    default: return DefSubclassProc(window, number, first, second);
    }
}

} // namespace ostrelum::windows_platform
