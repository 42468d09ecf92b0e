#include "report/Informe.h"

#include "figures/Figures.h"
#include "figures/PassOver.h"
#include "figures/Platform.h"
#include "figures/Program.h"
#include "report/Body.h"
#include "report/Documents.h"
#include "report/ReportForm.h"
#include "report/Stages.h"
#include "sources/Characters.h"

namespace ostrelum::inline report {
namespace {

struct Stage {
    /// Of the section.
    Text title;
    void (*run)();
};

constexpr std::array<Stage, 12> stages{{
    {Text::UserAccount, InfUser},
    {Text::Computer, InfComputer},
    {Text::OperatingSystem, InfOS},
    {Text::Processor, InfCPU},
    {Text::Ram, InfRAM},
    {Text::HardDrives, InfDisks},
    {Text::Bios, InfBIOS},
    {Text::Display, InfDisplay},
    {Text::GraphicsCard, InfGraphics},
    {Text::Keyboard, InfKeyboard},
    {Text::Mouse, InfMouse},
    {Text::OtherHardware, InfOther},
}};

/// Puts the number of the step on the screen before its queries begin.
void show_step(std::size_t number)
{
    const std::string step = std::to_string(number) + "/" + std::to_string(stages.size());
    F2.LStatus.Caption = FillMark(Trad[Text::ReportStep], "(#)", step);
    platform.toolkit->Refresh(F2);
}

void run_stages()
{
    std::size_t number = 0;
    for (const Stage& stage : stages) {
        write_heading(Trad[stage.title]);
        show_step(++number);
        stage.run();
    }
}

/// The 12-hour form: "02:05 PM".
std::string medium_time(const TimeOfDay& time)
{
    const int hour = time.hour % 12 == 0 ? 12 : time.hour % 12;
    return two_digits(hour) + ":" + two_digits(time.minute) + (time.hour < 12 ? " AM" : " PM");
}

std::string time_text()
{
    const TimeOfDay now = platform.clock->time();
    return Idioma == "Spanish" ? platform.regional->long_time(now) + " hs." : medium_time(now);
}

/// "(2)" stays until the seconds are known.
void make_title()
{
    TempStr = FillMark(Trad[Text::ReportTitle], "(1)", program_version);
    attempt([] { TempStr = FillMark(TempStr, "(3)", time_text()); });
    attempt([] {
        TempStr = FillMark(TempStr, "(4)", platform.regional->short_date(platform.clock->date()));
    });
}

ReportLook look()
{
    return {.title = TempStr, .red = SkinR, .green = SkinG, .blue = SkinB};
}

/// The time since the start of the report: the first four characters, however far they reach.
std::string seconds_text()
{
    const std::uint64_t milliseconds = platform.clock->timeGetTime() - ReportStart;
    return first_characters(RealText(static_cast<double>(milliseconds) / 1000), 4);
}

void InfEnd()
{
    const ReportLook colours = look();
    for (std::size_t i = 0; i < document_formats.size(); ++i) {
        std::string& document = *report_documents()[i];
        document = finished_document(*document_formats[i], colours, document, F2.Tb);
    }
    F2.Tb.clear();
    TempStr = seconds_text();
    for (std::string* document : report_documents())
        *document = FillMark(*document, "(2)", TempStr);
    F2.LStatus.Caption = FillMark(Trad[Text::ReportMadeIn], "(#)", TempStr);
}

} // namespace

void InfStart()
{
    make_title();
    F2.Tb.clear();
    for (std::size_t i = 0; i < document_formats.size(); ++i)
        *report_documents()[i] = document_formats[i]->head(look());
    run_stages();
    InfEnd();
}

} // namespace ostrelum::inline report
