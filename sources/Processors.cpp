#include "sources/Processors.h"

#include "sources/Characters.h"
#include "sources/NumberText.h"
#include "sources/Utf8.h"
#include "sources/Value.h"

namespace ostrelum::inline sources {

std::string ClockText(std::int32_t megahertz, std::string_view decimal_sign)
{
    return first_characters(RealText(megahertz / 1000.0, decimal_sign), 4) + " Ghz";
}

std::string CacheText(std::string_view kilobytes)
{
    const std::string text(kilobytes);
    switch (character_count(text)) {
    case 2:
    case 3: return text + " KB";
    case 4: return WholeText(rounded_down(Value(text).number() / 1024)) + " MB";
    default: return "";
    }
}

} // namespace ostrelum::inline sources
