#pragma once

#include "figures/PassOver.h"

#include <concepts>
#include <initializer_list>
#include <string>

/// How a stage writes its section of the body, in the markup that documents are made from.
namespace ostrelum::inline report {

/// A row of a section: its label, which brings its own colon, and its value.
struct ReportRow {
    std::string label;
    std::string value;
};

/// Writes the heading of a section.
void write_heading(const std::string& title);

/// Writes the rows of a section, at least one, and closes it.
void write_rows(std::initializer_list<ReportRow> rows);

/// A value as a row shows it: "Unknown" for an empty one.
std::string known(const std::string& value);

/// The same for a value that may fail to be made.
std::string known(std::invocable auto make_value)
{
    std::string value;
    attempt([&] { value = make_value(); });
    return known(value);
}

} // namespace ostrelum::inline report
