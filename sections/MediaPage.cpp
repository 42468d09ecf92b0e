#include "sections/MediaPage.h"

#include "frame/Page.h"
#include "sources/NumberText.h"

namespace ostrelum::inline sections {

void show_notice(Text key, int top, int height)
{
    empty_rows(1, 8);
    clear_title_tooltips(1, 8);
    F1.LNoDrive.Caption = Trad[key];
    F1.LNoDrive.Top = top;
    F1.LNoDrive.Height = height;
    F1.LNoDrive.Visible = true;
}

void show_alert(Colour colour, const std::string& text)
{
    F1.Laviso.ForeColor = colour;
    F1.Laviso.Caption = text;
    F1.Iaviso.Visible = F1.Laviso.Visible = true;
}

void count_up(std::uint8_t& counter)
{
    if (counter < 255)
        ++counter;
}

std::int32_t whole_kilobytes(const Value& bytes)
{
    return rounded_down(bytes.number() / 1024);
}

} // namespace ostrelum::inline sections
