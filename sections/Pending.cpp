#include "frame/Page.h"
#include "sections/Sections.h"

#include <cstdint>

/// Sections whose collector is not written yet: the page opens with its title and its picture, and
/// its rows are empty.
namespace ostrelum {
namespace {

void open_empty_page(std::uint8_t section)
{
    enter_section(section);
    F1.Titulo.Caption = Trad[section + 10U];
    hide(F1.LNoDrive, F1.Line1, F1.Iaviso, F1.Laviso);
    plain_title(1);
    plain_title(8);
    empty_rows(1, 12);
}

} // namespace

void SecSummary()
{
    open_empty_page(1);
}
void SecUser()
{
    open_empty_page(2);
}
void SecComputer()
{
    open_empty_page(3);
}
void SecOS()
{
    open_empty_page(4);
}
void SecCPU()
{
    open_empty_page(5);
}
void SecRemovable()
{
    open_empty_page(11);
}
void SecOptical()
{
    open_empty_page(12);
}
void SecOther()
{
    open_empty_page(13);
}

} // namespace ostrelum
