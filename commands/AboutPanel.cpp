#include "commands/Commands.h"
#include "figures/PassOver.h"
#include "figures/Platform.h"
#include "figures/Program.h"
#include "figures/Shared.h"
#include "frame/Language.h"
#include "frame/MainForm.h"
#include "frame/Navigation.h"
#include "frame/Page.h"

/// What the program says about itself, and the two links into the user's browser.
namespace ostrelum::inline commands {
namespace {

constexpr Colour plain_text = rgb(32, 32, 32);
constexpr Colour lit_link = rgb(0, 80, 210);

/// Moves a label to directly behind another one.
void place_behind(const Label& before, Label& label)
{
    label.Left = before.Left + before.Width;
}

/// A row of the panel: the value stands directly behind its title, as on the pages.
void set_info(Label& title, Label& value, const std::string& title_text, const std::string& text)
{
    title.Caption = title_text + " ";
    fit(*platform.toolkit, title);
    place_behind(title, value);
    value.Caption = text;
}

/// The date is the text's only part that may fail.
std::string version_text()
{
    std::string date;
    attempt([&] { date = platform.regional->short_date(version_date); });
    return std::string(program_version) + " (" + date + ")";
}

/// The Dutch table names its translator, whatever the language of the run.
void name_translator()
{
    LangDutch();
    F1.LTra1.Caption = " - " + Trad[Text::Translator] + ": " + Trad[Text::LanguageName] + " - ";
    fill_string_table(Idioma);
}

void light_link(bool lit)
{
    F1.LTra2.ForeColor = lit ? lit_link : plain_text;
    F1.LTra2.Font.Underline = lit;
}

void open_address(std::string_view address)
{
    platform.browser->ShellExecuteA("Open", std::string(address));
}

void Informacion_Click()
{
    open_panel(AboutPanel);
    show_title();
    set_info(F1.LTInfo1, F1.LInfo1, Trad[Text::Version], version_text());
    set_info(F1.LTInfo2, F1.LInfo2, Trad[Text::Programmer], std::string(author));
    set_info(F1.LTInfo3, F1.LInfo3, Trad[Text::Contact], std::string(contact_address));
    F1.LTra.Caption = Trad[Text::Translators];
    name_translator();
    fit(*platform.toolkit, F1.LTra1);
    place_behind(F1.LTra1, F1.LTra2);
    F1.LTra2.Caption = Trad[Text::Website];
    F1.BAceptar.Caption = Trad[Text::Accept];
    F1.BAceptar.Visible = F1.PicInformacion.Visible = true;
    // Not to the link, which stands before it: Enter is to accept.
    platform.toolkit->SetFocus(F1, &F1.BAceptar);
}

void LTra2_MouseDown(int button, int, int, int)
{
    if (button == left_button)
        open_address(translator_address);
}

void LTra2_MouseMove()
{
    light_link(true);
}

void PicInformacion_MouseMove()
{
    light_link(false);
}

void LTra1_MouseMove()
{
    PicInformacion_MouseMove();
}

void VisitWeb_Click()
{
    open_address(web_address);
}

constexpr Handler handlers[] = {
    OSTRELUM_ON(Informacion_Click), OSTRELUM_ON(LTra2_MouseDown),
    OSTRELUM_ON(LTra2_MouseMove),   OSTRELUM_ON(PicInformacion_MouseMove),
    OSTRELUM_ON(LTra1_MouseMove),   OSTRELUM_ON(VisitWeb_Click),
};

} // namespace

const HandlerTable about_panel_handlers{handlers};

} // namespace ostrelum::inline commands
