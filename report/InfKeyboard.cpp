#include "figures/InputFigures.h"
#include "figures/Shared.h"
#include "report/Body.h"
#include "report/Stages.h"

namespace ostrelum {

void InfKeyboard()
{
    read_input();

    write_rows({
        {Trad[125], known(Datos[1])},
        {Trad[61], known(Datos[2])},
    });
}

void InfMouse()
{
    write_rows({
        {Trad[126], known(Datos[3])},
        {Trad[59], known(Datos[4])},
        {Trad[127], known(mouse_buttons())},
        {Trad[128], known(pointer_interface())},
        {Trad[131], known(handedness())},
    });
}

} // namespace ostrelum
