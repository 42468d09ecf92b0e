#include "figures/InputFigures.h"
#include "frame/Page.h"
#include "sections/Sections.h"

namespace ostrelum::inline sections {

void SecInput()
{
    enter_section(InputPage);
    read_input();

    show_title();
    hide(F1.LNoDrive, F1.Line1, F1.Line2, F1.Iaviso, F1.Laviso);
    plain_title(1);
    plain_title(8);
    set_row(1, Trad[Text::KeyboardName], Datos[InputSlot::KeyboardName]);
    set_row(2, Trad[Text::Type], Datos[InputSlot::KeyboardType]);
    empty_rows(3, 3);
    place_line(F1.Line1, 3, 9);
    set_row(4, Trad[Text::MouseName], Datos[InputSlot::MouseName]);
    set_row(5, Trad[Text::Manufacturer], Datos[InputSlot::MouseManufacturer]);
    set_row(6, Trad[Text::ButtonCount], mouse_buttons());
    set_row(7, Trad[Text::Connection], pointer_interface());
    set_row(8, Trad[Text::Handedness], handedness());
    clear_title_tooltips(3, 5);
    empty_rows(9, 12);
}

} // namespace ostrelum::inline sections
