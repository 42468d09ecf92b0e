#pragma once

#include <string_view>

/// What the program says about itself, the same in all languages.
namespace ostrelum {

inline constexpr std::string_view ProgramVersion = "2.5";
inline constexpr std::string_view WebAddress = "https://dervalin.example.org/ostrelum";

} // namespace ostrelum
