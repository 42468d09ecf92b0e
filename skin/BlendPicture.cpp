#include "skin/BlendPicture.h"

#include "skin/Pixels.h"

#include <algorithm>

namespace ostrelum::inline skin {
namespace {

Bitmap white_bitmap(int width, int height)
{
    Bitmap bitmap(width, height);
    std::ranges::fill(bitmap.bytes, std::uint8_t{255});
    return bitmap;
}

Picture white_picture(int width, int height)
{
    return Picture(white_bitmap(width, height),
                   [=] { return white_bitmap(2 * width, 2 * height); });
}

Bitmap blended(Bitmap over, const Bitmap& source, std::uint8_t alpha)
{
    blend_pixels(over, source, alpha);
    return over;
}

} // namespace

void BlendPicture(PictureBox& dest, const PictureBox& source, std::uint8_t alpha)
{
    dest.Cls();
    const Picture below =
        dest.Stored.empty() ? white_picture(dest.Width, dest.Height) : dest.Stored;
    dest.Surface =
        source.Stored.redrawn(blended(below.bitmap(), source.Stored.bitmap(), alpha),
                              [below, above = source.Stored, alpha] {
                                  return blended(below.doubled(), above.doubled(), alpha);
                              });
}

} // namespace ostrelum::inline skin
