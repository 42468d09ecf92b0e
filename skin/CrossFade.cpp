#include "figures/Shared.h"
#include "frame/MainForm.h"
#include "frame/PageTable.h"
#include "skin/BlendPicture.h"
#include "skin/Skin.h"

namespace ostrelum::inline skin {
namespace {

/// The pictures that the page on show crosses over to.
PagePictures pictures_of_page()
{
    const PageEntry* page = page_on_show();
    if (!page)
        return {};
    return media_missing() ? page->pictures_without_media : page->pictures;
}

void end_cross_fade(const PagePictures& pictures)
{
    if (pictures.page) {
        F1.Ico.store((F6.get().*pictures.page).Stored);
        F1.Iaviso.store(pictures.alert ? (F6.get().*pictures.alert).Stored : Picture());
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
    if (pictures.page)
        BlendPicture(F1.Ico, F6.get().*pictures.page, alpha);
    if (pictures.alert)
        BlendPicture(F1.Iaviso, F6.get().*pictures.alert, alpha);
}

constexpr Handler handlers[] = {OSTRELUM_ON(TAlphaB_Timer)};

} // namespace

const HandlerTable cross_fade_handlers{handlers};

void start_cross_fade()
{
    Cnt2 = 0;
    F1.TAlphaB.Enabled = true;
}

} // namespace ostrelum::inline skin
