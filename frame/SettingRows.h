#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ostrelum::inline frame {

/// The key under which all settings lie.
inline constexpr std::string_view settings_root =
    "HKEY_CURRENT_USER\\Software\\Classes\\VirtualStore\\MACHINE\\SOFTWARE\\Dervalin\\Ostrelum";

/// The full name of a setting.
inline std::string full_name(std::string_view setting)
{
    return std::string(settings_root) + "\\" + std::string(setting);
}

/// The setting that is text: one of "English", "Spanish", "Dutch".
inline constexpr std::string_view language_setting = "Language";
inline constexpr std::string_view default_language = "English";

/// A setting that is a number, stored as "REG_DWORD".
struct NumberSetting {
    std::string_view name;
    std::int32_t lowest;
    std::int32_t highest;
    std::int32_t fallback;
};

/// Skin colour 0x00BBGGRR: from pure red to pure cyan, the lowest and highest that the spectrum
/// holds.
inline constexpr NumberSetting color_value_setting{"ColorValue", 255, 16776960, 16750080};
/// Position of the brightness slider.
inline constexpr NumberSetting shine_value_setting{"ShineValue", 0, 48, 48};
/// Position of the colour slider, the column of the spectrum.
inline constexpr NumberSetting scv_setting{"SCV", 0, 210, 122};
/// The window may be transparent: 0 or 1.
inline constexpr NumberSetting chk_trans_setting{"ChkTrans", 0, 1, 1};
/// Transparency of the window in percent.
inline constexpr NumberSetting transparency_setting{"Transparency", 0, 80, 0};

} // namespace ostrelum::inline frame
