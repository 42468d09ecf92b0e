#include "figures/InputFigures.h"
#include "figures/Shared.h"
#include "report/Body.h"
#include "report/Stages.h"

namespace ostrelum::inline report {

void InfKeyboard()
{
    read_input();

    write_rows({
        {Trad[Text::KeyboardName], known(Datos[InputSlot::KeyboardName])},
        {Trad[Text::Type], known(Datos[InputSlot::KeyboardType])},
    });
}

void InfMouse()
{
    write_rows({
        {Trad[Text::MouseName], known(Datos[InputSlot::MouseName])},
        {Trad[Text::Manufacturer], known(Datos[InputSlot::MouseManufacturer])},
        {Trad[Text::ButtonCount], known(mouse_buttons())},
        {Trad[Text::Connection], known(pointer_interface())},
        {Trad[Text::Handedness], known(handedness())},
    });
}

} // namespace ostrelum::inline report
