#include "sources/Texts.h"

#include "sources/Characters.h"
#include "sources/LetterCase.h"

namespace ostrelum::inline sources {

std::string FillMark(std::string_view form, std::string_view mark, std::string_view value)
{
    std::string filled;
    for (auto at = form.find(mark); !mark.empty() && at != std::string_view::npos;
         at = form.find(mark)) {
        filled.append(form.substr(0, at)).append(value);
        form.remove_prefix(at + mark.size());
    }
    return filled.append(form);
}

std::string CapitalText(std::string_view text)
{
    const std::string first = first_characters(text, 1);
    return upper_case(first) + lower_case(text.substr(first.size()));
}

} // namespace ostrelum::inline sources
