#pragma once

#include "figures/PassOver.h"
#include "figures/Shared.h"
#include "figures/Slots.h"
#include "frame/MainForm.h"

#include <concepts>
#include <string>

/// How a collector writes its page: the title, the twelve rows, and what is hidden.
namespace ostrelum::inline frame {

/// What each collector begins with: unless its page is already the one on show, the status line
/// says that the page is being filled, F1.Seccion takes the section and Line2 is hidden.
void enter_section(std::uint8_t section);

/// The same for a page that is filled anew, also when it is the one on show.
void announce_section(std::uint8_t section);

/// Writes the title of the page that is on show.
void show_title();

/// Shows a line across the page, `below` pixels under the top of a row's title; its ends stay where
/// they are from left to right.
void place_line(Line& line, int row, int below);

/// Hides controls.
void hide(auto&... controls)
{
    ((controls.Visible = false), ...);
}

/// Gives a row's title its normal look back: the Summary page makes headings of rows 1 and 8.
void plain_title(int row);

/// Makes a row a heading in the skin's colour, without a value.
void set_heading(int row, const std::string& title);

/// Writes a row's title and moves the value to directly behind it. `title` is written as it is.
void set_title(int row, const std::string& title);

/// Moves a row's value to directly behind its title.
void place_value(int row);

/// Writes a row's value as it is, also an empty one, and puts the same text into its tooltip.
void set_bare_value(int row, const std::string& value);

/// Writes a row's value, "Unknown" for an empty one, and puts the same text into its tooltip.
void set_value(int row, const std::string& value);

/// The same for a value that may fail to be made: the row then keeps the value it had, and its
/// tooltip takes that.
void set_value(int row, std::invocable auto make_value)
{
    attempt([&] { set_value(row, std::string(make_value())); });
    F1.L(row).ToolTipText = F1.L(row).Caption;
}

/// Sets a row: the title with one blank behind it, the value directly behind the title.
void set_row(int row, const std::string& title, const auto& value)
{
    set_title(row, title + " ");
    set_value(row, value);
}

/// Empties the rows `from` to `to`: titles, values and the values' tooltips.
void empty_rows(int from, int to);

/// Takes the tooltips off the titles of the rows `from` to `to`.
void clear_title_tooltips(int from, int to);

} // namespace ostrelum::inline frame
