#include "platform/windows/toolkit/Drawing.h"
#include "platform/windows/toolkit/FormWindow.h"

/// How a form's window and what lies over each other in it is drawn.
namespace ostrelum::windows_platform {
namespace {

RECT screen_place_of(HWND window)
{
    RECT place{};
    GetWindowRect(window, &place);
    return place;
}

/// The user has the system write in colours that he can read, whatever ground a program has.
bool in_high_contrast()
{
    HIGHCONTRASTW about{};
    about.cbSize = sizeof about;
    return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof about, &about, 0) &&
           (about.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

} // namespace

void FormWindow::paint()
{
    PAINTSTRUCT about{};
    const HDC dc = BeginPaint(handle(), &about);
    fill(dc, about.rcPaint, form_.BackColor);
    EndPaint(handle(), &about);
}

void FormWindow::draw_under(HDC dc, int control)
{
    const RECT own = screen_place_of(window(control));
    const int holder = entry_at(form_, control).container;
    if (holder == form_itself) {
        fill(dc, {0, 0, width_of(own), height_of(own)}, form_.BackColor);
    } else {
        const RECT place = screen_place_of(window(holder));
        draw_control(dc, holder, {place.left - own.left, place.top - own.top});
    }
    for (int below = 0; below < control; ++below) {
        if (entry_at(form_, below).container != holder || !window(below) || is_input(below) ||
            !IsWindowVisible(window(below)))
            continue;
        const RECT place = screen_place_of(window(below));
        RECT common{};
        if (IntersectRect(&common, &place, &own))
            draw_control(dc, below, {place.left - own.left, place.top - own.top});
    }
}

/// Draws a control, with what lies under it, where it is seen from another one.
void FormWindow::draw_control(HDC dc, int control, POINT at)
{
    const ControlWindow& drawn = *control_window(control);
    const RECT place = screen_place_of(drawn.handle());
    const int before = SaveDC(dc);
    OffsetViewportOrgEx(dc, at.x, at.y, nullptr);
    IntersectClipRect(dc, 0, 0, width_of(place), height_of(place));
    if (!drawn.is_opaque() && at.x <= 0 && at.y <= 0)
        draw_under(dc, control);
    drawn.draw(dc);
    RestoreDC(dc, before);
}

void FormWindow::draw_anew(int control)
{
    const HWND holder = GetParent(window(control));
    RECT place = screen_place_of(window(control));
    MapWindowPoints(nullptr, holder, reinterpret_cast<POINT*>(&place), 2);
    RedrawWindow(holder, &place, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_NOERASE);
}

/// Buttons and boxes to tick stand on the ground of what holds them. In high contrast their letters
/// are light, so they keep the ground that goes with those.
std::optional<LRESULT> FormWindow::colours_under(HWND child, HDC dc) const
{
    const int control = GetDlgCtrlID(child) - 1;
    if (control < 0 || control >= static_cast<int>(controls_.size()) || window(control) != child ||
        in_high_contrast())
        return std::nullopt;
    const int holder = entry_at(form_, control).container;
    Colour ground = form_.BackColor;
    if (holder != form_itself) {
        if (auto* const* box = std::get_if<PictureBox*>(&entry_at(form_, holder).control))
            ground = (*box)->BackColor;
    }
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, rgb(0, 0, 0));
    SetDCBrushColor(dc, ground);
    return reinterpret_cast<LRESULT>(GetStockObject(DC_BRUSH));
}

} // namespace ostrelum::windows_platform
