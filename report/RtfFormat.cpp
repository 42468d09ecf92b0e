#include "figures/Program.h"
#include "figures/Shared.h"
#include "report/Documents.h"

/// Rich text. Colour 1 is the skin colour, colour 2 a grey, colour 3 the blue of the link.
namespace ostrelum::inline report {
namespace {

/// An entry of the colour table.
std::string colour_entry(const ReportLook& look)
{
    return "\\red" + std::to_string(look.red) + "\\green" + std::to_string(look.green) + "\\blue" +
           std::to_string(look.blue) + ";";
}

// A line of the document is a line here.
// clang-format off
std::string head(const ReportLook& look)
{
    return "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Segoe UI;}{\\f1\\fnil\\fcharset2 Symbol;}}\r\n"
           "{\\colortbl ;" + colour_entry(look) + "\\red64\\green64\\blue64;\\red0\\green0\\blue255;}\r\n"
           "{\\*\\generator Msftedit 5.41.21.2510;}\\viewkind4\\uc1\\pard\\qc\\lang11274\\f0\\fs24\\par\r\n"
           "\\par\r\n"
           "\\cf1\\fs30 " + look.title + "\\cf0\\par\r\n"
           "\\fs24 " + hyphens(90) + "\\fs28\\par\r\n"
           "\\pard\\par\r\n"
           "\\par\r\n"
           "\\par\r\n";
}

Expansions expansions(const ReportLook&)
{
    return {
        "\\cf1\\i\\fs28 ",
        "\\cf0\\i0\\fs24\\par\r\n" + hyphens(18) + "\\par",
        "\\pard{\\pntext\\f1\\'B7\\tab}{\\*\\pn\\pnlvlblt\\pnf1\\pnindent0{\\pntxtb\\'B7}}"
        "\\fi-360\\li720\\sl276\\slmult1\\b\\fs22 ",
        "\\b0  \\i ",
        "\\i0\\par",
        "\\b{\\pntext\\f1\\'B7\\tab}",
        "\\i0\\par\r\n"
        "\\pard\\sl276\\slmult1\\par\r\n"
        "\\par",
    };
}

std::string foot(const ReportLook&)
{
    return "\r\n"
           "\\pard\\par\r\n"
           "\\par\r\n"
           "\\par\r\n"
           "\\par\r\n"
           "\\pard\\sl276\\slmult1\\qc\\cf1\\fs28 " + Trad[Text::ThankYou] + "\\cf0\\fs24\\par\r\n" +
           hyphens(72) + "\\cf2\\fs18\\par\r\n"
           "\\cf0{\\field{\\*\\fldinst{HYPERLINK \"" + std::string(web_address) + "\"}}"
           "{\\fldrslt{\\cf3\\ul " + Trad[Text::Website] + "}}}\\cf0\\ulnone\\f0\\fs20\\par\r\n"
           "\\pard\\fs24\\par\r\n"
           "\\par\r\n"
           "}\r\n"
           " ";
}
// clang-format on

/// The head leaves the size of a heading set, so the first heading does not set it again. The gap
/// behind the last section gives way to the foot.
void postprocess(std::string& document)
{
    constexpr std::string_view heading = "\\cf1\\i\\fs28 ";
    constexpr std::string_view gap = "\r\n\\pard\\sl276\\slmult1\\par\r\n\\par\r\n";
    static_assert(gap.size() == 33);
    if (const auto first = document.find(heading); first != std::string::npos)
        document.replace(first, heading.size(), "\\cf1\\i ");
    document.resize(document.size() - std::min(document.size(), gap.size()));
}

} // namespace

const DocumentFormat rtf_format{head, expansions, postprocess, foot};

} // namespace ostrelum::inline report
