#include "skin/BlendPicture.h"

#include "skin/Pixels.h"

#include <algorithm>

namespace ostrelum {
namespace {

Bitmap white_bitmap(int width, int height)
{
    Bitmap bitmap(width, height);
    std::ranges::fill(bitmap.bytes, std::uint8_t{255});
    return bitmap;
}

} // namespace

void BlendPicture(PictureBox& dest, const PictureBox& source, std::uint8_t alpha)
{
    dest.Cls();
    Bitmap pixels =
        dest.Stored.empty() ? white_bitmap(dest.Width, dest.Height) : dest.Stored.bitmap();
    blend_pixels(pixels, source.Stored.bitmap(), alpha);
    dest.Surface = source.Stored.redrawn(std::move(pixels));
}

} // namespace ostrelum
