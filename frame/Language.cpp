#include "frame/Language.h"

#include "figures/Shared.h"
#include "frame/F1Events.h"
#include "frame/LanguageTable.h"
#include "frame/MainForm.h"
#include "frame/Page.h"
#include "frame/PageTable.h"

#include <array>

namespace ostrelum::inline frame {
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
    F1.LTPers1.Caption = Trad[Text::Language];
    F1.LTPers2.Caption = Trad[Text::Skin];
    F1.LPers1.Caption = Trad[Text::SkinColour];
    F1.LPers2.Caption = Trad[Text::SkinShine];
    F1.LTPers3.Caption = Trad[Text::WindowTransparency];
    F1.CheckTrans.Caption = " " + Trad[Text::AllowTransparency];
    F1.BAceptar.Caption = Trad[Text::Accept];
    F1.LangList.AccessibleName = Trad[Text::Language];
    F1.Scroll1.AccessibleName = Trad[Text::SkinColour];
    F1.Scroll2.AccessibleName = Trad[Text::SkinShine];
    F1.Scroll3.AccessibleName = Trad[Text::WindowTransparency];
}

void translate_options_menu()
{
    F1.LOpc.Caption = Trad[Text::Options];
    F1.MenuLogo.AccessibleName = Trad[Text::Options];
    F1.Personalizar.Caption = Trad[Text::Customize];
    F1.CrearInforme.Caption = Trad[Text::MakeReport];
    F1.Informacion.Caption = Trad[Text::About];
    F1.VisitWeb.Caption = Trad[Text::VisitWebsite];
    F1.Quit.Caption = Trad[Text::Exit];
}

void LangList_Click()
{
    const auto chosen = static_cast<std::size_t>(F1.LangList.ListIndex);
    if (chosen < languages.size()) {
        Idioma = languages[chosen].name;
        languages[chosen].fill();
    }
    show_title();
    TraduPrincipal();
    F1.PicPersonalizar.Cls();
}

constexpr Handler handlers[] = {OSTRELUM_ON(LangList_Click)};

} // namespace

const HandlerTable language_handlers{handlers};

void set_texts(std::span<const TextRow> table)
{
    for (std::size_t key = 1; key <= StringTable::last_key; ++key)
        Trad[static_cast<Text>(key)].clear();
    for (const TextRow& row : table)
        Trad[row.key] = row.text;
}

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
        F1.LangList.List.push_back(Trad[Text::LanguageName]);
    }
    choose(F1, F1.LangList, chosen);
}

void TraduPrincipal()
{
    if (F1.Seccion == CustomisePanel)
        translate_customise_panel();
    translate_options_menu();
    for (int n = 1; n <= F1.LMenu.count; ++n) {
        F1.LMenu(n).Caption = Trad[find_page(static_cast<std::uint8_t>(n))->title];
        if (n == F1.SeccionPrev)
            F1.LMenu2.Caption = F1.LMenu(n).Caption;
    }
    F1.Copy.Caption = Trad[Text::Copy];
    F1.CopyAll.Caption = Trad[Text::CopyAll];
}

} // namespace ostrelum::inline frame
