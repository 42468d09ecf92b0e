#include "tests/Stage.h"

#include "skin/Pixels.h"
#include "skin/Skin.h"

#include <algorithm>

namespace ostrelum {
namespace {

/// A grey picture whose levels run through all 256, with marked filling bytes.
Bitmap grey_ramp(int width, int height)
{
    Bitmap bitmap(width, height);
    std::ranges::fill(bitmap.bytes, std::uint8_t{0xA5});
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width * 3; ++x)
            bitmap.row(y)[x] = static_cast<std::uint8_t>((y * width + x / 3) % 256);
    }
    return bitmap;
}

TEST(Tinting, ShiftsEachChannelByColourAndShineAndLeavesTheFillingAlone)
{
    const TintColour colours[] = {{0, 150, 255, 24},   {255, 0, 0, 0}, {255, 255, 255, 24},
                                  {220, 220, 220, 24}, {0, 0, 0, 0},   {17, 244, 1, 13}};
    for (const auto& [width, height] : {std::pair{31, 40}, {170, 3}, {1, 300}, {16, 16}}) {
        const Bitmap grey = grey_ramp(width, height);
        for (const TintColour& colour : colours) {
            Bitmap expected = grey;
            const int base[] = {colour.blue, colour.green, colour.red};
            for (int y = 0; y < height; ++y) {
                for (int x = 0; x < width * 3; ++x) {
                    const int level = grey.row(y)[x] + base[x % 3] + colour.shine - 244;
                    expected.row(y)[x] = static_cast<std::uint8_t>(std::clamp(level, 0, 255));
                }
            }
            Bitmap tinted = grey;
            tint_pixels(tinted, grey, colour);
            EXPECT_TRUE(tinted == expected) << width << "x" << height << " red " << int{colour.red};
        }
    }
}

TEST(Blending, MixesByConstantAlpha)
{
    Bitmap black(3, 2);
    Bitmap white_picture(3, 2);
    std::ranges::fill(white_picture.bytes, std::uint8_t{255});
    for (const int alpha : {0, 13, 128, 247, 255}) {
        Bitmap mixed = black;
        blend_pixels(mixed, white_picture, static_cast<std::uint8_t>(alpha));
        EXPECT_EQ(mixed.row(1)[8], alpha);
        blend_pixels(mixed = white_picture, white_picture, static_cast<std::uint8_t>(alpha));
        EXPECT_TRUE(
            std::ranges::equal(std::span(mixed.row(0), 9), std::span(white_picture.row(0), 9)));
    }
    Bitmap wide(4, 1);
    Bitmap narrow(2, 1);
    narrow.bytes = {10, 10, 10, 90, 90, 90, 0, 0};
    blend_pixels(wide, narrow, 255);
    EXPECT_EQ(wide.bytes,
              (std::vector<std::uint8_t>{10, 10, 10, 10, 10, 10, 90, 90, 90, 90, 90, 90}));
}

class Skin : public Stage {
protected:
    Skin() { start_program(); }
};

TEST_F(Skin, TextColourFollowsBaseAndShine)
{
    const struct {
        int base, shine, text;
    } cases[] = {{0, 24, 0}, {255, 24, 189}, {255, 0, 165}, {66, 24, 0}, {67, 24, 1}};
    for (const auto& c : cases) {
        SplitColor(c.base | 7 << 8 | 0x123 << 16);
        Shine = c.shine;
        MakeSkinColor();
        EXPECT_EQ(SkinR, c.text) << c.base << " " << c.shine;
        EXPECT_EQ(BaseG, 7);
        EXPECT_EQ(BaseB, 0x23);
    }
}

TEST_F(Skin, EachOfItsPicturesIsTintedAndNoTintBuildsOnTheOneBefore)
{
    for (const PictureBox* pic : {&F1.S(1), &F1.S(2), &F1.S(3), &F1.S(4), &F1.BM})
        EXPECT_NE(pic->Surface, pic->Stored) << F1.entry_of(pic).name << F1.entry_of(pic).index;
    const Picture stored = F1.S(4).Stored;
    const Bitmap first = F1.S(4).Surface.bitmap();
    SplitColor(255);
    Tint(F1.S(4));
    EXPECT_FALSE(F1.S(4).Surface.bitmap() == first);
    SplitColor(16750080);
    Tint(F1.S(4));
    EXPECT_TRUE(F1.S(4).Surface.bitmap() == first);
    EXPECT_EQ(F1.S(4).Stored, stored);
}

TEST_F(Skin, TheCrossFadeTakesTwentyTicksFromTheOldPicturesToTheNew)
{
    const Bitmap before = F1.Ico.Stored.bitmap();
    Bitmap page(35, 35);
    std::ranges::fill(page.bytes, std::uint8_t{255});
    const auto mixed = [](Bitmap under, const PictureBox& over, int alpha) {
        blend_pixels(under, over.Stored.bitmap(), static_cast<std::uint8_t>(alpha));
        return under;
    };
    press("LMenu", 9);
    tick("TAlphaB");
    press("LMenu", 2);
    EXPECT_EQ(Cnt2, 0) << "a click during the fade starts it over";
    for (int i = 1; i <= 19; ++i) {
        tick("TAlphaB");
        EXPECT_TRUE(F1.Ico.Stored.bitmap() == before);
        EXPECT_TRUE(F1.Ico.Surface.bitmap() == mixed(before, F6->Sec2, 13 * i)) << i;
        EXPECT_TRUE(F1.Iaviso.Surface.bitmap() == mixed(page, F6->Info, 13 * i)) << i;
    }
    tick("TAlphaB");
    EXPECT_EQ(F1.Ico.Surface, F6->Sec2.Stored);
    EXPECT_FALSE(F1.TAlphaB.Enabled);
}

TEST_F(Skin, PagesChooseTheirPictures)
{
    const struct {
        std::uint8_t section, media;
        const PictureBox *ico, *alert;
    } cases[] = {{2, 0, &F6->Sec2, &F6->Info},      {11, 0, &F6->Sec11b, &F6->Alerta},
                 {11, 3, &F6->Sec11a, &F6->Ok},     {12, 0, &F6->Sec12b, &F6->Alerta},
                 {12, 1, &F6->Sec12a, &F6->Ok},     {CustomisePanel, 0, &F6->IOpc, nullptr},
                 {AboutPanel, 0, &F6->IAC, nullptr}};
    for (const auto& c : cases) {
        F1.Seccion = c.section;
        F1.MediaCount = c.media;
        start_cross_fade();
        toolkit.advance(F1, 20 * frame_time);
        EXPECT_EQ(F1.Ico.Stored, c.ico->Stored) << int{c.section};
        EXPECT_EQ(F1.Iaviso.Stored, c.alert ? c.alert->Stored : Picture()) << int{c.section};
    }
}

TEST_F(Skin, EveryPictureOfTheDesignIsThereInItsSize)
{
    for (const Form* form : {static_cast<Form*>(&F1), static_cast<Form*>(F6.operator->())}) {
        for (const ControlEntry& entry : form->controls) {
            auto* const* box = std::get_if<PictureBox*>(&entry.control);
            if (!box || (form == &F1 && (*box)->Stored.empty()))
                continue;
            const Bitmap &plain = (*box)->Stored.bitmap(), &doubled = (*box)->Stored.doubled();
            EXPECT_EQ(std::pair(plain.width, plain.height),
                      std::pair((*box)->Width, (*box)->Height))
                << entry.name;
            EXPECT_EQ(std::pair(doubled.width, doubled.height),
                      std::pair(2 * plain.width, 2 * plain.height))
                << entry.name;
        }
    }
}

} // namespace
} // namespace ostrelum
