#include "figures/Figures.h"
#include "frame/Page.h"
#include "sections/ListRows.h"
#include "sections/MediaPage.h"
#include "sections/Sections.h"

namespace ostrelum::inline sections {
namespace {

/// The lists in DatosCD.
enum class DiscSlot {
    Names = 1,
    Letters,
    Capacities,
    InternalNames,
    DriveTypes,
    FileSystems,
    SerialNumbers
};

/// Whether the page is open with discs on it: it is then drawn again from what it holds.
bool values_are_kept()
{
    return F1.Seccion == DiscsPage && !DatosCD[DiscSlot::Names].empty() &&
           !DatosCD[DiscSlot::Letters].empty() && !DatosCD[DiscSlot::InternalNames].empty();
}

/// A drive or volume without a disc has no size.
bool is_loaded(const Instance& item)
{
    return holds([&] { return !item["Size"].is_null() && item["Size"].number() > 0; });
}

void add_disc(const Instance& item)
{
    count_up(F1.MediaCount);
    add_name(DatosCD[DiscSlot::Names], item, "VolumeName");
    add_letter(DatosCD[DiscSlot::Letters], item, "Name");
    attempt([&] { Num1 = whole_kilobytes(item["Size"]); });
    add_capacity(DatosCD[DiscSlot::Capacities], SizeByDigits(SizeUse::DiscCapacity, Num1));
    add_name(DatosCD[DiscSlot::FileSystems], item, "FileSystem");
    add_name(DatosCD[DiscSlot::SerialNumbers], item, "VolumeSerialNumber");
}

void read_discs()
{
    query("Select DriveType, Size, VolumeName, Name, Size, FileSystem, VolumeSerialNumber from "
          "Win32_LogicalDisk where DriveType = 5");
    each(WmiResult, [](const Instance& item) {
        count_up(F1.EmptyDrives);
        if (is_loaded(item))
            add_disc(item);
    });
    F1.EmptyDrives = static_cast<std::uint8_t>(F1.EmptyDrives - F1.MediaCount);
}

void read_loaded_drives()
{
    query("Select Size, Name, MediaType from Win32_CDROMDrive");
    each(WmiResult, [](const Instance& item) {
        if (!is_loaded(item))
            return;
        add_name(DatosCD[DiscSlot::InternalNames], item, "Name");
        add_name(DatosCD[DiscSlot::DriveTypes], item, "MediaType");
    });
}

void collect()
{
    announce_section(DiscsPage);
    DatosCD = {};
    DatosCD[DiscSlot::Capacities] = "(";
    F1.EmptyDrives = F1.MediaCount = 0;
    Num1 = 0;
    read_discs();
    if (F1.MediaCount != 0)
        read_loaded_drives();
}

int notice_top()
{
    if (FontsOk != preferred_fonts)
        return 220;
    if (Idioma == "English")
        return 210;
    return Idioma == "Spanish" ? 205 : 200;
}

void show_no_disc()
{
    show_title();
    show_notice(Text::NoDiscNotice, notice_top(), 180);
    show_alert(nothing_found, Trad[Text::NoDisc] + crlf + Trad[Text::InsertDisc]);
    F1.Line1.Visible = false;
}

/// A count in words: the text of `one` for 1, else the text of `many` with the number filled in.
std::string counted(std::uint8_t count, Text one, Text many)
{
    return count == 1 ? Trad[one] : FillMark(Trad[many], "(#)", WholeText(count));
}

std::string count_text()
{
    const std::string empty = F1.EmptyDrives == 0
                                  ? Trad[Text::NoDriveEmpty]
                                  : counted(F1.EmptyDrives, Text::OneDriveEmpty, Text::DrivesEmpty);
    return counted(F1.MediaCount, Text::OneDriveLoaded, Text::DrivesLoaded) + crlf + empty;
}

void show_discs()
{
    show_title();
    hide(F1.LNoDrive);
    plain_title(1);
    set_list_row(1, Trad[Text::Name], DatosCD[DiscSlot::Names], name_tail);
    set_list_row(2, Trad[Text::DriveLetter], DatosCD[DiscSlot::Letters], name_tail);
    set_list_row(3, Trad[Text::Size], DatosCD[DiscSlot::Capacities], size_tail);
    set_list_row(4, Trad[Text::InternalName], DatosCD[DiscSlot::InternalNames], name_tail);
    set_list_row(5, Trad[Text::DriveType], DatosCD[DiscSlot::DriveTypes], name_tail);
    set_list_row(6, Trad[Text::FileSystem], DatosCD[DiscSlot::FileSystems], name_tail);
    set_list_row(7, Trad[Text::SerialNumber], DatosCD[DiscSlot::SerialNumbers], name_tail);
    clear_title_tooltips(3, 5);
    show_alert(media_found, count_text());
    place_line(F1.Line1, 8, 4);
}

} // namespace

void SecOptical()
{
    if (!values_are_kept())
        collect();
    if (F1.MediaCount != 0)
        show_discs();
    else
        show_no_disc();
    empty_rows(8, 12);
}

} // namespace ostrelum::inline sections
