#include "figures/Shared.h"

namespace ostrelum::inline figures {

void reset_shared_state()
{
    WmiService = {};
    WmiResult.clear();
    WmiItem = {};
    ShellObject = {};
    Trad = {};
    Idioma.clear();
    Datos = {};
    DatosCD = {};
    TempStr.clear();
    Cnt = Cnt2 = Num1 = Num2 = ram_total = 0;
    ColorValue = ColorAtOpen = 0;
    BaseR = BaseG = BaseB = 0;
    Shine = SkinR = SkinG = SkinB = 0;
    Transparency = 0;
    TransEnabled = false;
    FontsOk = 0;
    SysInfo = {};
}

} // namespace ostrelum::inline figures
