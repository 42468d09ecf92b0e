#include "figures/Program.h"
#include "figures/Shared.h"
#include "report/Documents.h"

namespace ostrelum::inline report {
namespace {

std::string rgb(const ReportLook& look)
{
    return "rgb(" + std::to_string(look.red) + "," + std::to_string(look.green) + "," +
           std::to_string(look.blue) + ")";
}

// A line of the document is a line here.
// clang-format off
std::string head(const ReportLook& look)
{
    return "<html>\r\n"
           "\t<head>\r\n"
           "\t\t<title>" + Trad[Text::ReportName] + "</title>\r\n"
           "\t\t<style type='text/css'>\r\n"
           "\t\t\tbody{margin-top:0px; margin-left:15px}\r\n"
           "\t\t\tlabel{font-family:'Segoe UI', Arial; cursor:auto}\r\n"
           "\t\t\t.Section{color:" + rgb(look) + "; font-size:20px; font-style:italic}\r\n"
           "\t\t\t.Line{font-weight:bold; font-size:15px}\r\n"
           "\t\t\t.Result{font-size:15px; font-style:italic}\r\n"
           "\t\t</style>\r\n"
           "\t</head>\r\n"
           "\t<body>\r\n"
           "\t\t<br><br>\r\n"
           "\t\t<center><label style='color:" + rgb(look) + "; font-size:22px'>" + look.title + "</label></center>\r\n"
           "\t\t<br>\r\n"
           "\t\t<hr width='750' size='1'>\r\n"
           "\t\t<br><br>\r\n"
           "\r\n";
}

Expansions expansions(const ReportLook&)
{
    return {
        "\t\t<label class='Section'>",
        "</label>\r\n"
        "\t\t<hr align='left' width='100' size='1'>",
        "\t\t<ul>\r\n"
        "\t\t\t<li><label class='Line'>",
        " </label><label class='Result'>",
        "</label></li>",
        "\t\t\t<li><label class='Line'>",
        "</label></li>\r\n"
        "\t\t</ul>\r\n"
        "\t\t<br>\r\n",
    };
}

std::string foot(const ReportLook& look)
{
    return "\r\n"
           "\t\t<br><br>\r\n"
           "\t\t<center><label style='color:" + rgb(look) + "; font-size:20px'>" + Trad[Text::ThankYou] + "</label></center>\r\n"
           "\t\t<hr width='600' size='1'>\r\n"
           "\t\t<center><label style='font-size:12px'><a href='" + std::string(web_address) + "' target='_blank'>" + Trad[Text::Website] + "</a></label></center>\r\n"
           "\t\t<br>\r\n"
           "\t</body>\r\n"
           "</html>";
}
// clang-format on

} // namespace

const DocumentFormat html_format{head, expansions, nullptr, foot};

} // namespace ostrelum::inline report
