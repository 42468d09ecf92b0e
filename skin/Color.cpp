#include "figures/Shared.h"
#include "frame/MainForm.h"
#include "skin/Pixels.h"
#include "skin/Skin.h"

#include <algorithm>

namespace ostrelum::inline skin {
namespace {

Bitmap tinted(const Bitmap& grey, const TintColour& colour)
{
    Bitmap pixels(grey.width, grey.height);
    tint_pixels(pixels, grey, colour);
    return pixels;
}

} // namespace

void SplitColor(std::int32_t color)
{
    BaseR = static_cast<std::uint8_t>(color & 255);
    BaseG = static_cast<std::uint8_t>(color / 256 & 255);
    BaseB = static_cast<std::uint8_t>(color / 65536 & 255);
}

void MakeSkinColor()
{
    const auto text_level = [](std::uint8_t base) { return std::clamp(base - 90 + Shine, 0, 255); };
    SkinR = text_level(BaseR);
    SkinG = text_level(BaseG);
    SkinB = text_level(BaseB);
}

void Tint(PictureBox& pic)
{
    pic.Cls();
    if (pic.Stored.empty())
        return;
    const TintColour colour{.red = BaseR, .green = BaseG, .blue = BaseB, .shine = Shine};
    const Picture stored = pic.Stored;
    pic.Surface = stored.redrawn([=] { return tinted(stored.bitmap(), colour); },
                                 [=] { return tinted(stored.doubled(), colour); });
}

void tint_skin()
{
    for (PictureBox* pic : {&F1.S(1), &F1.BM, &F1.S(2), &F1.S(3), &F1.S(4)})
        Tint(*pic);
}

} // namespace ostrelum::inline skin
