#include "platform/windows/toolkit/Drawing.h"

#include "platform/windows/toolkit/Scale.h"

namespace ostrelum::windows_platform {

void fill(HDC dc, const RECT& place, Colour colour)
{
    SetDCBrushColor(dc, colour);
    FillRect(dc, &place, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

Canvas::Canvas(HDC target, const RECT& place)
    : target_(target), place_(place), dc_(CreateCompatibleDC(target)),
      pixels_(CreateCompatibleBitmap(target, width_of(place), height_of(place))),
      pixels_before_(SelectObject(dc_, pixels_.get()))
{
    SetViewportOrgEx(dc_, -place.left, -place.top, nullptr);
}

Canvas::~Canvas()
{
    SelectObject(dc_, pixels_before_);
    DeleteDC(dc_);
}

void Canvas::show() const
{
    BitBlt(target_, place_.left, place_.top, width_of(place_), height_of(place_), dc_, place_.left,
           place_.top, SRCCOPY);
}

} // namespace ostrelum::windows_platform
