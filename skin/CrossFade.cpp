#include "figures/Shared.h"
#include "frame/MainForm.h"
#include "frame/PictureForm.h"
#include "skin/BlendPicture.h"
#include "skin/Skin.h"

namespace ostrelum::inline skin {
namespace {

/// The pictures that a page crosses over to; nullptr for none.
struct PagePictures {
    const PictureBox* ico = nullptr;
    const PictureBox* alert = nullptr;
};

PagePictures media_pictures(const PictureBox& found, const PictureBox& none)
{
    if (F1.MediaCount != 0)
        return {&found, &F6->Ok};
    return {&none, &F6->Alerta};
}

PagePictures pictures_of_page()
{
    switch (F1.Seccion) {
    case 1: return {&F6->Sec1};
    case 2: return {&F6->Sec2, &F6->Info};
    case 3: return {&F6->Sec3};
    case 4: return {&F6->Sec4};
    case 5: return {&F6->Sec5};
    case 6: return {&F6->Sec6};
    case 7: return {&F6->Sec7};
    case 8: return {&F6->Sec8};
    case 9: return {&F6->Sec9};
    case 10: return {&F6->Sec10};
    case 11: return media_pictures(F6->Sec11a, F6->Sec11b);
    case 12: return media_pictures(F6->Sec12a, F6->Sec12b);
    case 13: return {&F6->Sec13};
    case CustomisePanel: return {&F6->IOpc};
    case AboutPanel: return {&F6->IAC};
    default: return {};
    }
}

void end_cross_fade(const PagePictures& pictures)
{
    if (pictures.ico) {
        F1.Ico.store(pictures.ico->Stored);
        F1.Iaviso.store(pictures.alert ? pictures.alert->Stored : Picture());
    }
    F1.TAlphaB.Enabled = false;
}

void TAlphaB_Timer()
{
    Cnt2 += 13;
    const PagePictures pictures = pictures_of_page();
    if (Cnt2 > 255) {
        end_cross_fade(pictures);
        return;
    }
    const auto alpha = static_cast<std::uint8_t>(Cnt2);
    if (pictures.ico)
        BlendPicture(F1.Ico, *pictures.ico, alpha);
    if (pictures.alert)
        BlendPicture(F1.Iaviso, *pictures.alert, alpha);
}

constexpr Handler rows[] = {OSTRELUM_ON(TAlphaB_Timer)};

} // namespace

const HandlerTable cross_fade_handlers{rows};

void start_cross_fade()
{
    Cnt2 = 0;
    F1.TAlphaB.Enabled = true;
}

} // namespace ostrelum::inline skin
