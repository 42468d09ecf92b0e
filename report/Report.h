#pragma once

#include "platform/toolkit/Events.h"

#include <array>
#include <string>

/// What the report offers to the rest of the program.
namespace ostrelum::inline report {

/// The entry of the options menu that makes a report.
extern const HandlerTable report_command_handlers;

/// Collects the whole inventory into the four documents without bringing up the dialog. The program
/// must be loaded.
void make_report();

/// A format of the report, by the name of the console's command line.
struct ReportDocument {
    const char* format;
    const std::string* text;
};

/// The documents as the last report left them, UTF-8 with CRLF line ends: "rtf", "html", "bbcode"
/// and "text".
std::array<ReportDocument, 4> made_documents();

/// The bytes of the file that saving makes of a document: the ANSI code page, and one line end
/// more.
std::string ansi_file(const std::string& document);

} // namespace ostrelum::inline report
