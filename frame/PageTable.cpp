#include "frame/PageTable.h"

#include "frame/MainForm.h"
#include "sections/Sections.h"

#include <algorithm>
#include <array>

namespace ostrelum::inline frame {
namespace {

using F = PictureForm;

constexpr PageEntry table[] = {
    {.section = SummaryPage,
     .title = Text::Summary,
     .collect = SecSummary,
     .rows = "H-VVVV-H-VVV",
     .pictures = {&F::Sec1}},
    {.section = UserPage,
     .title = Text::UserAccount,
     .collect = SecUser,
     .rows = "VVVVVVVVVV",
     .pictures = {&F::Sec2, &F::Info},
     .tick = refresh_user},
    {.section = ComputerPage,
     .title = Text::Computer,
     .collect = SecComputer,
     .rows = "VVVVVV",
     .pictures = {&F::Sec3}},
    {.section = SystemPage,
     .title = Text::OperatingSystem,
     .collect = SecOS,
     .rows = "VVVVVVVVVVV",
     .pictures = {&F::Sec4},
     .tick = refresh_system},
    {.section = ProcessorPage,
     .title = Text::Processor,
     .collect = SecCPU,
     .rows = "VVVVVVVVV",
     .pictures = {&F::Sec5}},
    {.section = MemoryPage,
     .title = Text::Ram,
     .collect = SecRAM,
     .rows = "VVVVVVVV",
     .pictures = {&F::Sec6},
     .tick = refresh_memory},
    {.section = DrivesPage,
     .title = Text::HardDrives,
     .collect = SecDisks,
     .rows = "VVVVVVVVV",
     .pictures = {&F::Sec7}},
    {.section = FirmwarePage,
     .title = Text::Bios,
     .collect = SecBIOS,
     .rows = "VVVVV",
     .pictures = {&F::Sec8}},
    {.section = DisplayPage,
     .title = Text::Display,
     .collect = SecDisplay,
     .rows = "VVVV-VVVVVV",
     .pictures = {&F::Sec9}},
    {.section = InputPage,
     .title = Text::KeyboardAndMouse,
     .collect = SecInput,
     .rows = "VV-VVVVV",
     .pictures = {&F::Sec10}},
    {.section = RemovablePage,
     .title = Text::RemovableMemory,
     .collect = SecRemovable,
     .rows = "VVVVVVVV",
     .pictures = {&F::Sec11a, &F::Ok},
     .lists_media = true,
     .pictures_without_media = {&F::Sec11b, &F::Alerta}},
    {.section = DiscsPage,
     .title = Text::Discs,
     .collect = SecOptical,
     .rows = "VVVVVVV",
     .pictures = {&F::Sec12a, &F::Ok},
     .lists_media = true,
     .pictures_without_media = {&F::Sec12b, &F::Alerta}},
    {.section = HardwarePage,
     .title = Text::OtherHardware,
     .collect = SecOther,
     .rows = "VVV-VV-VVVVV",
     .pictures = {&F::Sec13},
     .tick = refresh_battery},
    {.section = CustomisePanel, .title = Text::Customize, .pictures = {&F::IOpc}},
    {.section = AboutPanel, .title = Text::About, .pictures = {&F::IAC}},
};

constexpr bool begins_with_the_sections()
{
    for (std::uint8_t section = 1; section <= section_count; ++section) {
        const PageEntry& page = table[section - 1];
        if (page.section != section || page.rows.empty())
            return false;
    }
    return table[section_count].rows.empty();
}
static_assert(begins_with_the_sections());
static_assert(std::ranges::all_of(table, [](const PageEntry& page) {
    return page.rows.size() <= 12 && page.rows.find_first_not_of("HV-") == page.rows.npos;
}));

} // namespace

const PageEntry* find_page(std::uint8_t section)
{
    const PageEntry* page = std::ranges::find(table, section, &PageEntry::section);
    return page == std::end(table) ? nullptr : page;
}

const PageEntry* page_on_show()
{
    return find_page(F1.Seccion);
}

bool media_missing()
{
    const PageEntry* page = page_on_show();
    return page && page->lists_media && F1.MediaCount == 0;
}

} // namespace ostrelum::inline frame
