#include "figures/Platform.h"
#include "frame/Language.h"
#include "frame/MainForm.h"
#include "frame/Navigation.h"
#include "frame/Opacity.h"
#include "frame/Page.h"
#include "frame/Settings.h"
#include "skin/Skin.h"

#include <cmath>

/// The panel for language, colour, shine and transparency. What is changed acts at once; only
/// Accept writes it to the store.
namespace ostrelum::inline skin {
namespace {

constexpr Colour live_text = rgb(32, 32, 32);
constexpr Colour dimmed_text = rgb(96, 96, 96);
/// The row of the spectrum that is sampled: its first and last are an edge.
constexpr int sampled_row = 2;
/// From the arrow's left edge to its tip.
constexpr int arrow_tip = 4;

/// The spectrum's colour at a column, 0x00BBGGRR. A spectrum that is missing changes nothing.
std::int32_t spectrum_colour(int column)
{
    const Bitmap& ramp = F1.Spectrum.Stored.bitmap();
    if (sampled_row >= ramp.height || column >= ramp.width)
        return ColorValue;
    const std::uint8_t* pixel = ramp.row(sampled_row) + std::ptrdiff_t{3} * column;
    return pixel[2] | pixel[1] << 8 | pixel[0] << 16;
}

void point_arrow()
{
    F1.Arrow.Left = F1.Spectrum.Left - arrow_tip + F1.Scroll1.Value;
}

void show_percent()
{
    F1.LPers3.Caption = std::to_string(Transparency) + " %";
}

void enable_transparency(bool enabled)
{
    F1.Scroll3.Enabled = enabled;
    F1.LPers3.ForeColor = enabled ? live_text : dimmed_text;
}

/// Shows the new colour and shine. The title and the slider follow the pointer before the pictures
/// are made; what the user has done meanwhile is taken first, so that the pictures end up newest.
void recolour()
{
    MakeSkinColor();
    F1.Titulo.ForeColor = rgb(SkinR, SkinG, SkinB);
    platform.toolkit->Refresh(F1);
    platform.toolkit->DoEvents();
    tint_skin();
}

void show_colour()
{
    ColorAtOpen = ColorValue;
    F1.HueAtOpen = read_hue();
    set_value(F1, F1.Scroll1, F1.HueAtOpen);
    point_arrow();
    F1.ShineAtOpen = Shine;
    set_value(F1, F1.Scroll2, Shine * 2);
}

void show_transparency()
{
    F1.ChkAtOpen = TransEnabled;
    set_value(F1, F1.CheckTrans, TransEnabled ? 1 : 0);
    enable_transparency(TransEnabled);
    F1.TransAtOpen = Transparency;
    set_value(F1, F1.Scroll3, Transparency);
    show_percent();
}

void Personalizar_Click()
{
    F1.PanelReady = false;
    open_panel(CustomisePanel);
    F1.LangAtOpen = Idioma;
    list_languages(F1.LangAtOpen);
    show_colour();
    show_transparency();
    F1.PicPersonalizar.Visible = F1.BAceptar.Visible = true;
    F1.PanelReady = true;
    platform.toolkit->SetFocus(F1, &F1.LangList);
}

void Scroll1_Scroll()
{
    if (!F1.PanelReady)
        return;
    point_arrow();
    ColorValue = spectrum_colour(F1.Scroll1.Value);
    SplitColor(ColorValue);
    recolour();
}

void Scroll1_Change()
{
    Scroll1_Scroll();
}

void Scroll2_Scroll()
{
    if (!F1.PanelReady)
        return;
    // Halves go to the even neighbour.
    Shine = static_cast<std::int32_t>(std::nearbyint(F1.Scroll2.Value / 2.0));
    recolour();
}

void Scroll2_Change()
{
    Scroll2_Scroll();
}

void Scroll3_Scroll()
{
    if (!F1.PanelReady)
        return;
    Transparency = F1.Scroll3.Value;
    show_percent();
    SetOpacity(F1, static_cast<std::int16_t>(Transparency));
}

void Scroll3_Change()
{
    Scroll3_Scroll();
}

void CheckTrans_Click()
{
    if (!F1.PanelReady)
        return;
    const bool ticked = F1.CheckTrans.Value != 0;
    SetOpacity(F1, static_cast<std::int16_t>(ticked ? Transparency : 0));
    TransEnabled = ticked;
    enable_transparency(ticked);
}

void close_customise_panel()
{
    F1.PicPersonalizar.Visible = false;
    F1.PanelReady = false;
    F1.LangList.List.clear();
    F1.LangList.ListIndex = -1;
    write_changed_settings();
}

void BAceptar_Click()
{
    F1.BAceptar.Visible = false;
    F1.PanelOpen = false;
    if (F1.Seccion == CustomisePanel)
        close_customise_panel();
    else
        F1.PicInformacion.Visible = false;
    UnlockMenu();
    F1.LineInf.Visible = true;
    F1.Seccion = F1.SeccionPrev;
    LMenu_MouseDown(F1.Seccion, left_button, 0, 0, 0);
}

constexpr Handler handlers[] = {
    OSTRELUM_ON(Personalizar_Click), OSTRELUM_ON(Scroll1_Scroll),   OSTRELUM_ON(Scroll1_Change),
    OSTRELUM_ON(Scroll2_Scroll),     OSTRELUM_ON(Scroll2_Change),   OSTRELUM_ON(Scroll3_Scroll),
    OSTRELUM_ON(Scroll3_Change),     OSTRELUM_ON(CheckTrans_Click), OSTRELUM_ON(BAceptar_Click),
};

} // namespace

const HandlerTable customise_panel_handlers{handlers};

} // namespace ostrelum::inline skin
