#include "figures/Program.h"
#include "figures/Shared.h"
#include "report/Documents.h"

namespace ostrelum::inline report {
namespace {

/// Two lower-case hexadecimal digits for each channel: red, green, blue.
std::string SkinHex(const ReportLook& look)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string hex;
    for (const int channel : {look.red, look.green, look.blue}) {
        hex += digits[static_cast<std::size_t>(channel >> 4 & 15)];
        hex += digits[static_cast<std::size_t>(channel & 15)];
    }
    return hex;
}

// A line of the document is a line here.
// clang-format off
std::string head(const ReportLook& look)
{
    return "[center][color=#" + SkinHex(look) + "][size=13pt]" + look.title + "[/size][/color]\r\n" +
           hyphens(108) + "[/center]\r\n"
           "\r\n"
           "\r\n"
           "\r\n";
}

Expansions expansions(const ReportLook& look)
{
    return {
        "[color=#" + SkinHex(look) + "][i][size=11pt]",
        "[/size][/i][/color]\r\n" + hyphens(18),
        "[list][li][b]",
        "[/b] [i]",
        "[/i][/li]",
        "[li][b]",
        "[/i][/li][/list]\r\n"
        "\r\n",
    };
}

std::string foot(const ReportLook& look)
{
    return "\r\n"
           "[center][color=#" + SkinHex(look) + "][size=13pt]" + Trad[Text::ThankYou] + "[/size][/color]\r\n" +
           hyphens(54) + "\r\n"
           "[url=" + std::string(web_address) + "]" + Trad[Text::Website] + "[/url][/center]";
}
// clang-format on

} // namespace

const DocumentFormat bbcode_format{head, expansions, nullptr, foot};

} // namespace ostrelum::inline report
