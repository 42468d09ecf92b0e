#include "frame/Settings.h"

#include "frame/Language.h"
#include "frame/MainForm.h"
#include "frame/Opacity.h"
#include "frame/PassOver.h"
#include "frame/SettingRows.h"
#include "sources/Ascii.h"

#include <cmath>
#include <optional>

namespace ostrelum {
namespace {

std::string as_text(const RegValue& stored)
{
    if (const auto* number = std::get_if<std::uint32_t>(&stored))
        return std::to_string(*number);
    return std::get<std::string>(stored);
}

/// The stored text of a setting; empty if there is none.
std::string read_text(std::string_view name)
{
    std::string text;
    attempt([&] { text = as_text(ShellObject->RegRead(full_name(name))); });
    return text;
}

/// The stored number of a setting if it lies in the setting's range.
std::optional<double> read_number(const NumberSetting& setting)
{
    std::optional<double> number;
    attempt([&] { number = Value(read_text(setting.name)).number(); });
    if (number && (*number < setting.lowest || *number > setting.highest))
        number.reset();
    return number;
}

void write_default(const NumberSetting& setting)
{
    attempt([&] {
        ShellObject->RegWrite(full_name(setting.name), static_cast<std::uint32_t>(setting.fallback),
                              "REG_DWORD");
    });
}

/// Halves go to the even neighbour.
std::int32_t rounded(double number)
{
    return static_cast<std::int32_t>(std::nearbyint(number));
}

/// The setting's number, or its default, which is then written too.
double number_or_default(const NumberSetting& setting)
{
    if (const auto number = read_number(setting))
        return *number;
    write_default(setting);
    return setting.fallback;
}

} // namespace

void read_language()
{
    Idioma = trim_blanks(read_text(LanguageName));
    if (fill_string_table(Idioma))
        return;
    Idioma = DefaultLanguage;
    attempt([] { ShellObject->RegWrite(full_name(LanguageName), Idioma, "REG_SZ"); });
    fill_string_table(Idioma);
}

void read_colour()
{
    ColorValue = rounded(number_or_default(ColorValueSetting));
}

void read_shine()
{
    Shine = rounded(number_or_default(ShineValueSetting) / 2);
}

void read_transparency_switch()
{
    const auto stored = read_number(ChkTransSetting);
    if (!stored || (*stored != 0 && *stored != 1))
        write_default(ChkTransSetting);
    TransEnabled = stored != 0.0;
    if (TransEnabled)
        SetOpacity(F1, 100);
}

void read_transparency()
{
    Transparency = rounded(number_or_default(TransparencySetting));
}

} // namespace ostrelum
