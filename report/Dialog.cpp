#include "figures/PassOver.h"
#include "figures/Platform.h"
#include "frame/MainForm.h"
#include "frame/Opacity.h"
#include "frame/PictureForm.h"
#include "report/Informe.h"
#include "report/Report.h"
#include "report/ReportEvents.h"
#include "report/ReportForm.h"
#include "skin/BlendPicture.h"

/// The lifecycle of the report dialog: fade in, run the chain, offer the documents, fade out.
namespace ostrelum::inline report {
namespace {

/// A step of the picture fade; its levels end at 255.
constexpr int blend_step = 13;

void set_level(std::int32_t percent)
{
    SetOpacity(F2, static_cast<std::int16_t>(percent));
}

void CrearInforme_Click()
{
    F1.Timer1.Enabled = false;
    load_report_form();
    F2.raise("Form", {.kind = EventKind::Load});
    platform.toolkit->ShowModal(F2);
}

void use_other_fonts()
{
    F2.Desc1.Font.Name = "Trebuchet MS";
    F2.Desc2.Font = {.Name = "Tahoma", .Size = 8};
    F2.LStatus.Font.Name = "Tahoma";
    F2.LStatus.Top = 98;
    F2.BSave.Font = F2.BClose.Font = {.Name = "Tahoma", .Size = 8};
}

void write_captions()
{
    F2.AccessibleName = Trad[Text::MakeAndSaveReport];
    F2.Desc1.ForeColor = rgb(0, 51, 153);
    F2.Desc1.Caption = Trad[Text::MakeAndSaveReport];
    F2.Desc2.Caption = Trad[Text::ReportWait];
    F2.BSave.Caption = Trad[Text::SaveReport];
    F2.BClose.Caption = Trad[Text::Accept];
}

void Form_Load()
{
    if (FontsOk != preferred_fonts)
        use_other_fonts();
    F2.Icon = F1.Icon;
    write_captions();
    if (!TransEnabled) {
        F2.Descargador.Enabled = true;
        return;
    }
    set_level(100);
    Cnt = 100;
    F2.TLoad.Enabled = true;
    F2.MayClose = false;
}

void collect()
{
    ReportStart = platform.clock->timeGetTime();
    attempt(InfStart);
}

/// What the user pressed while the window did not react meets buttons that are still disabled, so
/// that an impatient Escape does not close a dialog that has just become ready.
void StartReport()
{
    if (!TransEnabled)
        F2.Descargador.Enabled = false;
    collect();
    platform.toolkit->DoEvents();
    F2.BSave.Enabled = F2.BClose.Enabled = true;
    platform.toolkit->SetFocus(F2, &F2.BSave);
    platform.toolkit->announce(F2, F2.LStatus.Caption);
    F2.BlendLevel = 0;
    F2.TAlphaB.Enabled = true;
}

void TLoad_Timer()
{
    Cnt -= fade_step;
    set_level(Cnt);
    if (Cnt <= Transparency) {
        set_level(Transparency);
        F2.TLoad.Enabled = false;
        StartReport();
    }
}

void Descargador_Timer()
{
    StartReport();
}

void TAlphaB_Timer()
{
    F2.BlendLevel += blend_step;
    if (F2.BlendLevel > 255) {
        F2.Pic1.store(F6->Made.Stored);
        F2.TAlphaB.Enabled = false;
        return;
    }
    BlendPicture(F2.Pic1, F6->Made, static_cast<std::uint8_t>(F2.BlendLevel));
}

void BClose_Click()
{
    for (std::string* document : report_documents())
        document->clear();
    Unload(*platform.toolkit, F2);
    F1.Timer1.Enabled = true;
}

/// A dialog that is closed before its report has begun never begins it, and fades out from the
/// level that it has reached.
void begin_fade_out()
{
    if (!F2.TLoad.Enabled)
        Cnt = Transparency;
    F2.TLoad.Enabled = false;
    F2.TUnload.Enabled = true;
}

/// However the dialog is closed, the refresh of the page behind it goes on.
void Form_Unload(bool& cancel)
{
    F2.Descargador.Enabled = false;
    cancel = TransEnabled && !F2.MayClose;
    if (!cancel)
        F1.Timer1.Enabled = true;
    else if (!F2.TUnload.Enabled)
        begin_fade_out();
}

void TUnload_Timer()
{
    Cnt += fade_step;
    set_level(Cnt);
    if (Cnt >= 100) {
        F2.TUnload.Enabled = false;
        F2.MayClose = true;
        Unload(*platform.toolkit, F2);
    }
}

constexpr Handler command_handlers[] = {OSTRELUM_ON(CrearInforme_Click)};
constexpr Handler dialog_handlers[] = {
    OSTRELUM_ON(Form_Load),     OSTRELUM_ON(TLoad_Timer),  OSTRELUM_ON(Descargador_Timer),
    OSTRELUM_ON(TAlphaB_Timer), OSTRELUM_ON(BClose_Click), OSTRELUM_ON(Form_Unload),
    OSTRELUM_ON(TUnload_Timer),
};

} // namespace

const HandlerTable report_command_handlers{command_handlers};
const HandlerTable report_dialog_handlers{dialog_handlers};

std::vector<HandlerTable> report_form_handlers()
{
    return {report_dialog_handlers, save_handlers};
}

void make_report()
{
    load_report_form();
    collect();
}

std::array<ReportDocument, 4> made_documents()
{
    return {{{"rtf", &F2.Tb1}, {"html", &F2.Tb2}, {"bbcode", &F2.Tb3}, {"text", &F2.Tb4}}};
}

} // namespace ostrelum::inline report
