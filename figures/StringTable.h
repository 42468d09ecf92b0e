#pragma once

#include <array>
#include <string>

namespace ostrelum {

/// Every text that the user sees, by key, in the language of the last routine called; UTF-8, and
/// nothing that the ANSI code page of a saved report could not hold. Key 0 is never set; 142, 156
/// and 157 are reserved and empty in every language. A text with "(#)", "(1)" to "(4)", "(HHMMSS)"
/// or "(DDMMYYYY)" is a template: whoever uses it fills a copy.
inline std::array<std::string, 187> Trad;

/// Each fills keys 1 to 186 and changes nothing else: neither Idioma nor what stands on the screen.
void LangEnglish();
void LangSpanish();
void LangDutch();

} // namespace ostrelum
