#include "sources/LanguageCodes.h"

#include "sources/CodeTable.h"

namespace ostrelum::inline sources {
namespace {

/// Language identifiers as Win32_OperatingSystem.OSLanguage gives them ([MS-LCID]).
constexpr auto languages = std::to_array<CodeRow<std::string_view>>({
    {9, "English"},
    {1031, "German - Germany"},
    {1033, "English - United States"},
    {1034, "Español - Idioma tradicional"},
    {1043, "Nederlandse – Nederland"},
    {1046, "Português - Brasil"},
    {2057, "English - United Kingdom"},
    {2058, "Español - México"},
    {3082, "Español"},
    {11274, "Español - Argentina"},
    {14346, "Español - Uruguay"},
});
static_assert(rising(languages));

} // namespace

std::string language_name(std::string_view code)
{
    const auto* row = find_code(languages, code);
    return row ? std::string(row->text) : std::string();
}

} // namespace ostrelum::inline sources
