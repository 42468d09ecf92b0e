#include "platform/linux/formats/ConfigText.h"

#include "platform/linux/text/Text.h"
#include "sources/Ascii.h"

namespace ostrelum::linux_platform {
namespace {

/// A shell word without its quotes; what stands behind the closing one is not read.
std::string unquoted(std::string_view word)
{
    if (word.empty() || (word.front() != '"' && word.front() != '\''))
        return std::string(word.substr(0, word.find(' ')));
    const char quote = word.front();
    std::string text;
    for (std::size_t i = 1; i < word.size() && word[i] != quote; ++i) {
        if (quote == '"' && word[i] == '\\' && i + 1 < word.size())
            ++i;
        text += word[i];
    }
    return text;
}

} // namespace

std::optional<std::string> assigned(std::string_view text, std::string_view variable)
{
    std::optional<std::string> value;
    for (std::string_view line : lines_of(text)) {
        line = trimmed_space(line);
        if (line.starts_with("export "))
            line = trimmed_space(line.substr(7));
        if (line.size() > variable.size() && line.starts_with(variable) &&
            line[variable.size()] == '=')
            value = text_or_none(unquoted(line.substr(variable.size() + 1)));
    }
    return value;
}

std::optional<std::string> value_in_section(std::string_view text, std::string_view section,
                                            std::string_view key)
{
    bool inside = false;
    for (std::string_view line : lines_of(text)) {
        line = trimmed_space(line);
        if (line.starts_with('[') && line.ends_with(']'))
            inside = same_ascii_letters(trimmed_space(line.substr(1, line.size() - 2)), section);
        const auto equals = line.find('=');
        if (!inside || equals == line.npos || line.starts_with('#') || line.starts_with(';'))
            continue;
        if (same_ascii_letters(trimmed_space(line.substr(0, equals)), key))
            return text_or_none(line.substr(equals + 1));
    }
    return std::nullopt;
}

} // namespace ostrelum::linux_platform
