#pragma once

#include <sstream>
#include <string>
#include <utility>
#include <vector>

/// Rows of short texts, written close together.
namespace ostrelum {

/// The parts of a text; an empty text has none.
inline std::vector<std::string> split(const std::string& text, char between = '|')
{
    std::vector<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, between);)
        parts.push_back(part);
    return parts;
}

/// "name=value|name=value" as pairs; a part without a sign has an empty value.
inline std::vector<std::pair<std::string, std::string>> pairs(const std::string& text)
{
    std::vector<std::pair<std::string, std::string>> all;
    for (const std::string& part : split(text)) {
        const auto sign = part.find('=');
        all.emplace_back(part.substr(0, sign),
                         sign == std::string::npos ? "" : part.substr(sign + 1));
    }
    return all;
}

} // namespace ostrelum
