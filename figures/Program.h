#pragma once

#include "platform/system/Clock.h"

#include <string_view>

/// What the program says about itself, the same in all languages.
namespace ostrelum::inline figures {

inline constexpr std::string_view program_version = "2.5";
/// The day on which this version came out.
inline constexpr Date version_date{.year = 2012, .month = 8, .day = 6};
inline constexpr std::string_view author = "Alex Marenco";
inline constexpr std::string_view contact_address = "ostrelum@dervalin.example.org";
inline constexpr std::string_view translator_address = "https://terhaar.example.org";
inline constexpr std::string_view web_address = "https://dervalin.example.org/ostrelum";

} // namespace ostrelum::inline figures
