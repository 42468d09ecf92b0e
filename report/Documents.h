#pragma once

#include <array>
#include <string>
#include <string_view>

/// The four file formats of a report. The body is written once, in a small markup of its own; a
/// document is a head, the body with its seven markers expanded, and a foot. Nothing in the body is
/// escaped: what a value holds goes into each format as it is.
namespace ostrelum::inline report {

/// What heads and feet take from the program.
struct ReportLook {
    /// Heading of the document; its mark "(2)" stays until the seconds are known.
    std::string title;
    /// The skin colour, each channel 0 to 255.
    int red = 0;
    int green = 0;
    int blue = 0;
};

/// What stands for "^a" to "^g" in a format, in this order: before and behind a section's title,
/// before the first label, between label and value, behind a value, before a further label, behind
/// a section's last value.
using Expansions = std::array<std::string, 7>;

struct DocumentFormat {
    std::string (*head)(const ReportLook& look);
    Expansions (*expansions)(const ReportLook& look);
    /// What is done to the expanded document before the foot; nullptr for nothing.
    void (*postprocess)(std::string& document);
    std::string (*foot)(const ReportLook& look);
};

extern const DocumentFormat rtf_format;
extern const DocumentFormat html_format;
extern const DocumentFormat bbcode_format;
extern const DocumentFormat plain_text_format;

/// The formats in the order of the documents Tb1 to Tb4 and of the save dialog's filters.
inline const std::array<const DocumentFormat*, 4> document_formats{
    &rtf_format, &html_format, &bbcode_format, &plain_text_format};

/// Makes a finished document of its head, the body and the format's foot.
std::string finished_document(const DocumentFormat& format, const ReportLook& look,
                              const std::string& head, const std::string& body);

/// A line of `count` hyphens, without its end.
std::string hyphens(std::size_t count);

} // namespace ostrelum::inline report
