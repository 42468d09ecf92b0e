#pragma once

#include "platform/toolkit/Picture.h"
#include "platform/windows/toolkit/OwnedHandle.h"
#include "platform/windows/toolkit/Scale.h"

namespace ostrelum::windows_platform {

/// A picture in the pixels of a screen.
class DevicePicture {
public:
    /// A screen of a scale above 1 gets the picture from its drawing at double size.
    void set(const Picture& picture, Scale scale);
    /// Draws it with its top left corner there; what lies under its holes shows.
    void draw(HDC dc, POINT at) const;

private:
    Picture picture_;
    /// Pixels that cannot be drawn as the picture has them: scaled, or with holes.
    OwnedBitmap made_;
    SIZE made_size_{};
};

/// An icon, or with a hot spot a mouse cursor, of a picture that has a drawing at double size: from
/// the smallest that has `size` pixels or more in a row, else from the largest.
OwnedIcon icon_of(const Picture& picture, int size, const Point* hot_spot = nullptr);

} // namespace ostrelum::windows_platform
