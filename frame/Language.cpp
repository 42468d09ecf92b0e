#include "frame/Language.h"

#include "figures/Shared.h"
#include "frame/F1Events.h"
#include "frame/MainForm.h"

#include <array>

namespace ostrelum {
namespace {

struct LanguageRow {
    std::string_view name;
    void (*fill)();
};

/// In the order of the list of languages.
constexpr std::array<LanguageRow, 3> languages{
    {{"English", LangEnglish}, {"Spanish", LangSpanish}, {"Dutch", LangDutch}}};

void translate_customise_panel()
{
    F1.LTPers1.Caption = Trad[2];
    F1.LTPers2.Caption = Trad[166];
    F1.LPers1.Caption = Trad[152];
    F1.LPers2.Caption = Trad[153];
    F1.LTPers3.Caption = Trad[154];
    F1.CheckTrans.Caption = " " + Trad[155];
    F1.BAceptar.Caption = Trad[158];
    F1.LangList.AccessibleName = Trad[2];
    F1.Scroll1.AccessibleName = Trad[152];
    F1.Scroll2.AccessibleName = Trad[153];
    F1.Scroll3.AccessibleName = Trad[154];
}

void translate_options_menu()
{
    F1.LOpc.Caption = Trad[5];
    F1.MenuLogo.AccessibleName = Trad[5];
    F1.Personalizar.Caption = Trad[6];
    F1.CrearInforme.Caption = Trad[68];
    F1.Informacion.Caption = Trad[8];
    F1.VisitWeb.Caption = Trad[9];
    F1.Quit.Caption = Trad[10];
}

void LangList_Click()
{
    const auto chosen = static_cast<std::size_t>(F1.LangList.ListIndex);
    if (chosen < languages.size()) {
        Idioma = languages[chosen].name;
        languages[chosen].fill();
    }
    F1.Titulo.Caption = Trad[6];
    TraduPrincipal();
    F1.PicPersonalizar.Cls();
}

constexpr Handler table[] = {OSTRELUM_ON(LangList_Click)};

} // namespace

const HandlerTable language_handlers{table};

bool fill_string_table(const std::string& language)
{
    for (const LanguageRow& row : languages) {
        if (row.name == language) {
            row.fill();
            return true;
        }
    }
    return false;
}

void list_languages(const std::string& language)
{
    F1.LangList.List.clear();
    int chosen = 0;
    for (const LanguageRow& row : languages) {
        row.fill();
        if (row.name == language)
            chosen = static_cast<int>(F1.LangList.List.size());
        F1.LangList.List.push_back(Trad[1]);
    }
    choose(F1, F1.LangList, chosen);
}

void TraduPrincipal()
{
    if (F1.Seccion == CustomisePanel)
        translate_customise_panel();
    translate_options_menu();
    for (int n = 1; n <= F1.LMenu.count; ++n) {
        F1.LMenu(n).Caption = Trad[static_cast<std::size_t>(n) + 10];
        if (n == F1.SeccionPrev)
            F1.LMenu2.Caption = F1.LMenu(n).Caption;
    }
    F1.Copy.Caption = Trad[24];
    F1.CopyAll.Caption = Trad[25];
}

} // namespace ostrelum
