#include "frame/Page.h"

#include "figures/Platform.h"
#include "frame/PageTable.h"

namespace ostrelum::inline frame {
namespace {

/// What a row shows for a value that could not be had.
const std::string& unknown()
{
    return Trad[Text::Unknown];
}

void write(Label& label, const std::string& text)
{
    label.Caption = text;
    fit(*platform.toolkit, label);
}

void set_look(int row, Colour colour, bool italic)
{
    F1.LT(row).ForeColor = colour;
    F1.LT(row).Font.Italic = italic;
}

} // namespace

void enter_section(std::uint8_t section)
{
    if (F1.Seccion != section)
        announce_section(section);
}

void announce_section(std::uint8_t section)
{
    write(F1.Labelmi, Trad[Text::GettingInformation]);
    F1.Seccion = section;
    F1.Line2.Visible = false;
}

void show_title()
{
    F1.Titulo.Caption = Trad[page_on_show()->title];
}

void place_line(Line& line, int row, int below)
{
    line.Y1 = line.Y2 = F1.LT(row).Top + below;
    line.Visible = true;
}

void plain_title(int row)
{
    set_look(row, rgb(32, 32, 32), false);
}

void set_heading(int row, const std::string& title)
{
    set_look(row, rgb(SkinR, SkinG, SkinB), true);
    write(F1.LT(row), title);
    write(F1.L(row), "");
    F1.L(row).ToolTipText.clear();
}

void set_title(int row, const std::string& title)
{
    write(F1.LT(row), title);
    place_value(row);
}

void place_value(int row)
{
    F1.L(row).Left = F1.LT(row).Left + F1.LT(row).Width;
}

void set_bare_value(int row, const std::string& value)
{
    write(F1.L(row), value);
    F1.L(row).ToolTipText = F1.L(row).Caption;
}

void set_value(int row, const std::string& value)
{
    set_bare_value(row, value.empty() ? unknown() : value);
}

void empty_rows(int from, int to)
{
    for (int row = from; row <= to; ++row) {
        write(F1.LT(row), "");
        write(F1.L(row), "");
        F1.L(row).ToolTipText.clear();
    }
}

void clear_title_tooltips(int from, int to)
{
    for (int row = from; row <= to; ++row)
        F1.LT(row).ToolTipText.clear();
}

} // namespace ostrelum::inline frame
