#pragma once

#include "platform/system/Clock.h"

#include <string_view>

/// What the program says about itself, the same in all languages.
namespace ostrelum::inline figures {

inline constexpr std::string_view ProgramVersion = "2.5";
/// The day on which this version came out.
inline constexpr Date VersionDate{.year = 2012, .month = 8, .day = 6};
inline constexpr std::string_view Author = "Alex Marenco";
inline constexpr std::string_view ContactAddress = "ostrelum@dervalin.example.org";
inline constexpr std::string_view TranslatorAddress = "https://terhaar.example.org";
inline constexpr std::string_view WebAddress = "https://dervalin.example.org/ostrelum";

} // namespace ostrelum::inline figures
