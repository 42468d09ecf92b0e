#pragma once

#include <string>

namespace ostrelum::inline frame {

/// Each fills the keys 1 to 186 of Trad and changes nothing else: neither Idioma nor what stands on
/// the screen.
void LangEnglish();
void LangSpanish();
void LangDutch();

/// Fills Trad with the texts of a language: "English", "Spanish" or "Dutch". False for any other
/// name, which changes nothing.
bool fill_string_table(const std::string& language);

/// Fills the list of languages, each by its own name in itself, and chooses that of `language`,
/// which makes it the language of the run.
void list_languages(const std::string& language);

/// Applies Trad to the menus and the fixed labels of the main window.
void TraduPrincipal();

} // namespace ostrelum::inline frame
