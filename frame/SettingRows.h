#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ostrelum::inline frame {

/// The key under which all settings lie.
inline constexpr std::string_view SettingsRoot =
    "HKEY_CURRENT_USER\\Software\\Classes\\VirtualStore\\MACHINE\\SOFTWARE\\Dervalin\\Ostrelum";

/// The full name of a setting.
inline std::string full_name(std::string_view setting)
{
    return std::string(SettingsRoot) + "\\" + std::string(setting);
}

/// The setting that is text: one of "English", "Spanish", "Dutch".
inline constexpr std::string_view LanguageName = "Language";
inline constexpr std::string_view DefaultLanguage = "English";

/// A setting that is a number, stored as "REG_DWORD".
struct NumberSetting {
    std::string_view name;
    std::int32_t lowest;
    std::int32_t highest;
    std::int32_t fallback;
};

/// Skin colour 0x00BBGGRR: from pure red to pure cyan, the lowest and highest that the spectrum
/// holds.
inline constexpr NumberSetting ColorValueSetting{"ColorValue", 255, 16776960, 16750080};
/// Position of the brightness slider.
inline constexpr NumberSetting ShineValueSetting{"ShineValue", 0, 48, 48};
/// Position of the colour slider, the column of the spectrum.
inline constexpr NumberSetting ScvSetting{"SCV", 0, 210, 122};
/// The window may be transparent: 0 or 1.
inline constexpr NumberSetting ChkTransSetting{"ChkTrans", 0, 1, 1};
/// Transparency of the window in percent.
inline constexpr NumberSetting TransparencySetting{"Transparency", 0, 80, 0};

} // namespace ostrelum::inline frame
