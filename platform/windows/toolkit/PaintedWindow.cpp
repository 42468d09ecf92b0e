#include "platform/windows/toolkit/PaintedWindow.h"

#include "platform/windows/toolkit/Drawing.h"

#include <commctrl.h>

namespace ostrelum::windows_platform {

// The mouse is told to a static window only if it notifies.
PaintedWindow::PaintedWindow(int control, FormHost& host, DWORD style)
    : ControlWindow(control, host, WC_STATICW, SS_NOTIFY | style)
{
}

LRESULT PaintedWindow::handle_message(const Message& message)
{
    switch (message.number) {
    case WM_NCHITTEST: return lets_mouse_through() ? HTTRANSPARENT : HTCLIENT;
    case WM_ERASEBKGND: return TRUE;
    case WM_PAINT: paint(); return 0;
    case WM_PRINTCLIENT: {
        const HDC dc = reinterpret_cast<HDC>(message.first);
        host_.draw_under(dc, control_number_);
        draw(dc);
        return 0;
    }
    // A static window draws a new text at once, over the old one.
    case WM_SETTEXT: return DefWindowProcW(handle(), message.number, message.first, message.second);
    default: return by_default(message);
    }
}

void PaintedWindow::paint()
{
    PAINTSTRUCT about{};
    const HDC dc = BeginPaint(handle(), &about);
    if (!IsRectEmpty(&about.rcPaint)) {
        const Canvas canvas(dc, about.rcPaint);
        if (!is_opaque())
            host_.draw_under(canvas.dc(), control_number_);
        draw(canvas.dc());
        canvas.show();
    }
    EndPaint(handle(), &about);
}

} // namespace ostrelum::windows_platform
