#include "frame/Lifecycle.h"

#include "figures/PassOver.h"
#include "figures/Platform.h"
#include "frame/F1Events.h"
#include "frame/Language.h"
#include "frame/MainForm.h"
#include "frame/Navigation.h"
#include "frame/Opacity.h"
#include "frame/PictureForm.h"
#include "frame/Settings.h"
#include "skin/Skin.h"

namespace ostrelum::inline frame {
namespace {

void set_level()
{
    SetOpacity(F1, static_cast<std::int16_t>(Cnt));
}

/// What the services gave out goes before the services, which end with the process.
void end_program()
{
    WmiItem = {};
    WmiResult = {};
    WmiService = {};
    ShellObject = {};
    platform.toolkit->prepare_end();
    platform.system_api->End();
}

void Form_Initialize()
{
    if (platform.system_api->PrevInstance())
        end_program();
    platform.toolkit->InitCommonControls();
}

void test_fonts()
{
    FontsOk = 0;
    attempt([] {
        const std::string folder = ShellObject->SpecialFolders("Fonts");
        const auto plain = [&](const char* file) {
            return platform.system_api->GetAttr(folder + file) == archive_attribute;
        };
        if (plain("\\segoeui.ttf") && plain("\\segoeuil.ttf"))
            FontsOk = preferred_fonts;
    });
}

void use_other_fonts()
{
    F1.Titulo.Font = {.Name = "Arial", .Size = 20, .Italic = true};
    F1.Titulo.Top = 58;
    for (int row = 1; row <= F1.LT.count; ++row)
        F1.LT(row).Font.Name = F1.L(row).Font.Name = "Arial";
    F1.LNoDrive.Font.Name = "Arial";
}

void colour_the_skin()
{
    SplitColor(ColorValue);
    tint_skin();
    MakeSkinColor();
    F1.Titulo.ForeColor = rgb(SkinR, SkinG, SkinB);
}

void start_fade_in()
{
    Cnt = 100;
    F1.TLoad.Enabled = true;
}

void prepare_form()
{
    attempt([] { WmiService = platform.get_object("WINMGMTS:\\\\.\\root\\cimv2"); });
    attempt([] { ShellObject = platform.create_object("WScript.Shell"); });
    test_fonts();
    if (FontsOk != preferred_fonts)
        use_other_fonts();
    read_language();
    read_colour();
    read_shine();
    read_transparency_switch();
    read_transparency();
    colour_the_skin();
    F1.Ico.store(F6->Sec1.Stored);
    TraduPrincipal();
}

void Form_Load()
{
    prepare_form();
    LMenu_MouseDown(1, left_button, 0, 0, 0);
    if (TransEnabled)
        start_fade_in();
}

void TLoad_Timer()
{
    Cnt -= fade_step;
    set_level();
    if (Cnt <= Transparency) {
        SetOpacity(F1, static_cast<std::int16_t>(Transparency));
        F1.TLoad.Enabled = false;
    }
}

void Quit_Click()
{
    Unload(*platform.toolkit, F1);
}

void Form_Unload(bool& cancel)
{
    if (!TransEnabled)
        end_program();
    cancel = true;
    Cnt = Transparency;
    F1.TUnload.Enabled = true;
}

void TUnload_Timer()
{
    Cnt += fade_step;
    set_level();
    if (Cnt >= 100) {
        F1.TUnload.Enabled = false;
        end_program();
    }
}

constexpr Handler handlers[] = {
    OSTRELUM_ON(Form_Initialize), OSTRELUM_ON(Form_Load),   OSTRELUM_ON(TLoad_Timer),
    OSTRELUM_ON(Quit_Click),      OSTRELUM_ON(Form_Unload), OSTRELUM_ON(TUnload_Timer),
};

void put_to_first_state()
{
    reset_shared_state();
    F6.reset();
    load_main_form();
}

} // namespace

const HandlerTable lifecycle_handlers{handlers};

void load_program()
{
    put_to_first_state();
    F1.raise("Form", {.kind = EventKind::Load});
}

void load_without_page()
{
    put_to_first_state();
    prepare_form();
}

void start_program()
{
    put_to_first_state();
    F1.raise("Form", {.kind = EventKind::Initialize});
    F1.raise("Form", {.kind = EventKind::Load});
    platform.toolkit->Show(F1);
}

} // namespace ostrelum::inline frame
