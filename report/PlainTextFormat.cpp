#include "figures/Program.h"
#include "figures/Shared.h"
#include "report/Documents.h"

namespace ostrelum::inline report {
namespace {

/// A middle dot between two blanks.
const std::string bullet = " · ";

// A line of the document is a line here.
// clang-format off
std::string head(const ReportLook& look)
{
    return "\r\n" +
           bullet + look.title + "\r\n"
           "\r\n"
           "\r\n";
}

Expansions expansions(const ReportLook&)
{
    return {
        " ",
        "\r\n" + hyphens(18),
        bullet,
        " ",
        "",
        bullet,
        "\r\n"
        "\r\n",
    };
}

std::string foot(const ReportLook&)
{
    return "\r\n" +
           Trad[Text::ThankYou] + "\r\n" +
           hyphens(54) + "\r\n" +
           std::string(web_address) + "\r\n";
}
// clang-format on

} // namespace

const DocumentFormat plain_text_format{head, expansions, nullptr, foot};

} // namespace ostrelum::inline report
