#include "sections/ListRows.h"

#include "frame/Page.h"

namespace ostrelum::inline sections {

void set_list_row(int row, const std::string& title, const std::string& list, std::size_t tail)
{
    set_title(row, title + " ");
    attempt([&] { set_bare_value(row, without_tail(list, tail)); });
    F1.L(row).ToolTipText = F1.L(row).Caption;
}

void set_volume_rows()
{
    plain_title(1);
    plain_title(8);
    set_list_row(1, Trad[Text::Name], Datos[VolumeSlot::Names], name_tail);
    set_list_row(2, Trad[Text::DriveLetter], Datos[VolumeSlot::Letters], name_tail);
    set_list_row(3, Trad[Text::Capacity], Datos[VolumeSlot::Capacities], size_tail);
    set_list_row(4, Trad[Text::SpaceInUse], Datos[VolumeSlot::Used], size_tail);
    set_list_row(5, Trad[Text::FreeSpace], Datos[VolumeSlot::Free], size_tail);
    set_list_row(6, Trad[Text::InternalName], Datos[VolumeSlot::InternalNames], name_tail);
    set_list_row(7, Trad[Text::FileSystem], Datos[VolumeSlot::FileSystems], name_tail);
    set_list_row(8, Trad[Text::SerialNumber], Datos[VolumeSlot::SerialNumbers], name_tail);
}

} // namespace ostrelum::inline sections
