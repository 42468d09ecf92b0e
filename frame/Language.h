#pragma once

#include <string>

namespace ostrelum {

/// Fills Trad by the routine of a language: "English", "Spanish" or "Dutch". False for any other
/// name, which changes nothing.
bool fill_string_table(const std::string& language);

/// Applies Trad to the menus and the fixed labels of the main window.
void TraduPrincipal();

} // namespace ostrelum
