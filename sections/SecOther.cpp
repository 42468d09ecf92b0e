#include "figures/OtherHardware.h"
#include "frame/Page.h"
#include "sections/BatteryRows.h"
#include "sections/Sections.h"

namespace ostrelum::inline sections {
namespace {

void leave_out(int row, Line& line)
{
    empty_rows(row, row);
    place_line(line, row, 10);
}

} // namespace

void SecOther()
{
    enter_section(HardwarePage);
    read_other_hardware();

    show_title();
    hide(F1.LNoDrive, F1.Iaviso, F1.Laviso);
    plain_title(1);
    plain_title(8);
    set_row(1, Trad[Text::MotherboardName], Datos[HardwareSlot::BoardFullName]);
    set_row(2, Trad[Text::Manufacturer], Datos[HardwareSlot::BoardManufacturer]);
    set_row(3, Trad[Text::InternalName], Datos[HardwareSlot::BoardProduct]);
    leave_out(4, F1.Line1);
    set_row(5, Trad[Text::SoundCardName], Datos[HardwareSlot::SoundCardName]);
    set_row(6, Trad[Text::Manufacturer], Datos[HardwareSlot::SoundCardManufacturer]);
    leave_out(7, F1.Line2);
    set_row(8, Trad[Text::BatteryName], Datos[HardwareSlot::BatteryName]);
    set_row(9, Trad[Text::SerialNumber], Datos[HardwareSlot::BatterySerial]);
    set_title(10, Trad[Text::CurrentVoltage] + " ");
    set_title(11, Trad[Text::LoadPercentage] + " ");
    set_title(12, Trad[Text::RemainingTime] + " ");
    set_battery_values(Datos[HardwareSlot::BatteryVoltage], Datos[HardwareSlot::BatteryCharge],
                       Datos[HardwareSlot::BatteryMinutes]);
    clear_title_tooltips(3, 5);
    F1.Timer1.Enabled = true;
}

} // namespace ostrelum::inline sections
