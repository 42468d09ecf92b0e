#pragma once

#include "platform/toolkit/Colour.h"
#include "platform/windows/toolkit/OwnedHandle.h"

namespace ostrelum::windows_platform {

void fill(HDC dc, const RECT& place, Colour colour);

/// What is drawn here comes to the screen in one piece, so that nobody sees how it comes about.
class Canvas {
public:
    /// As large as the place, with the same coordinates, for a target like `target`.
    Canvas(HDC target, const RECT& place);
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;
    ~Canvas();

    HDC dc() const { return dc_; }
    /// Brings it to its place on the target.
    void show() const;

private:
    HDC target_;
    RECT place_;
    HDC dc_;
    OwnedBitmap pixels_;
    HGDIOBJ pixels_before_;
};

/// Uses a font, pen or bitmap in a drawing for a while.
class Selected {
public:
    Selected(HDC dc, HGDIOBJ object) : dc_(dc), before_(SelectObject(dc, object)) {}
    Selected(const Selected&) = delete;
    Selected& operator=(const Selected&) = delete;
    ~Selected() { SelectObject(dc_, before_); }

private:
    HDC dc_;
    HGDIOBJ before_;
};

} // namespace ostrelum::windows_platform
