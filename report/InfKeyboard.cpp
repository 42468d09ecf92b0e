#include "figures/InputFigures.h"
#include "figures/Shared.h"
#include "report/Body.h"
#include "report/Stages.h"

namespace ostrelum::inline report {

void InfKeyboard()
{
    read_input();

    write_rows({
        {Trad[Text::KeyboardName], known(Datos[1])},
        {Trad[Text::Type], known(Datos[2])},
    });
}

void InfMouse()
{
    write_rows({
        {Trad[Text::MouseName], known(Datos[3])},
        {Trad[Text::Manufacturer], known(Datos[4])},
        {Trad[Text::ButtonCount], known(mouse_buttons())},
        {Trad[Text::Connection], known(pointer_interface())},
        {Trad[Text::Handedness], known(handedness())},
    });
}

} // namespace ostrelum::inline report
