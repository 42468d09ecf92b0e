#include "figures/Figures.h"
#include "frame/Page.h"
#include "sections/ListRows.h"
#include "sections/MediaPage.h"
#include "sections/Sections.h"

namespace ostrelum::inline sections {
namespace {

void count_media()
{
    F1.MediaCount = 0;
    query("Select Size from Win32_LogicalDisk where DriveType = 2");
    each(WmiResult, [](const Instance& item) {
        attempt([&] {
            if (item["Size"].number() > 0)
                count_up(F1.MediaCount);
        });
    });
}

void show_no_drive()
{
    const bool preferred = FontsOk == preferred_fonts;
    show_title();
    if (Idioma == "Dutch")
        show_notice(Text::NoRemovableDriveNotice, preferred ? 135 : 160, preferred ? 280 : 260);
    else
        show_notice(Text::NoRemovableDriveNotice, preferred ? 170 : 190, 220);
    show_alert(nothing_found,
               Trad[Text::NoRemovableDrive] + crlf + Trad[Text::ConnectRemovableDrive]);
    F1.Line1.Visible = false;
}

void add_volume_name(const Instance& item)
{
    add_entry(Datos[VolumeSlot::Names], [&] {
        const Value& name = item["VolumeName"];
        if (name.is_null())
            return std::string(" - ");
        return (name.text().empty() ? Trad[Text::RemovableVolume] : name.text()) + " - ";
    });
}

/// A drive without a medium is listed too: it has the sizes of the one before it.
void add_sizes(const Instance& item)
{
    attempt([&] { Num1 = whole_kilobytes(item["Size"]); });
    add_capacity(Datos[VolumeSlot::Capacities], SizeByDigits(SizeUse::RemovableCapacity, Num1));
    attempt([&] { Num2 = whole_kilobytes(item["Freespace"]); });
    add_share(Datos[VolumeSlot::Free], SizeByDigits(SizeUse::RemovableFree, Num2), Num2, Num1);
    attempt([&] {
        const std::int32_t used = Value(std::int64_t{Num1} - Num2).as_int32();
        add_share(Datos[VolumeSlot::Used], SizeByDigits(SizeUse::RemovableUsed, used), used, Num1);
    });
}

void read_volumes()
{
    query("Select VolumeName, Caption, Size, Freespace, FileSystem, VolumeSerialNumber from "
          "Win32_LogicalDisk where DriveType = 2");
    each(WmiResult, [](const Instance& item) {
        add_volume_name(item);
        add_letter(Datos[VolumeSlot::Letters], item, "Caption");
        add_sizes(item);
        add_name(Datos[VolumeSlot::FileSystems], item, "FileSystem");
        add_name(Datos[VolumeSlot::SerialNumbers], item, "VolumeSerialNumber");
    });
    query("Select InterfaceType, Caption from Win32_DiskDrive");
    each(WmiResult, [](const Instance& item) {
        if (hangs_on(item, "USB", "1394"))
            add_name(Datos[VolumeSlot::InternalNames], item, "Caption");
    });
}

std::string count_text()
{
    if (F1.MediaCount == 1)
        return crlf + Trad[Text::OneRemovableDrive];
    return crlf + FillMark(Trad[Text::RemovableDrives], "(#)", WholeText(F1.MediaCount));
}

void show_drives()
{
    show_title();
    hide(F1.LNoDrive);
    set_volume_rows();
    clear_title_tooltips(3, 5);
    place_line(F1.Line1, 9, 4);
    show_alert(media_found, count_text());
}

} // namespace

void SecRemovable()
{
    enter_section(RemovablePage);
    begin_lists();
    Num1 = Num2 = 0;

    count_media();
    if (F1.MediaCount == 0) {
        show_no_drive();
    } else {
        read_volumes();
        show_drives();
    }
    empty_rows(9, 12);
}

} // namespace ostrelum::inline sections
