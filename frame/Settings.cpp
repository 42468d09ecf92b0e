#include "frame/Settings.h"

#include "figures/PassOver.h"
#include "frame/Language.h"
#include "frame/MainForm.h"
#include "frame/Opacity.h"
#include "frame/SettingRows.h"
#include "sources/Ascii.h"

#include <cmath>
#include <optional>

namespace ostrelum::inline frame {
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

/// The stored number of a setting if it lies in the setting's range. `prepare` changes it before it
/// is held against that.
std::optional<double> read_number(
    const NumberSetting& setting, double (*prepare)(double) = [](double number) { return number; })
{
    std::optional<double> number;
    attempt([&] { number = prepare(Value(read_text(setting.name)).number()); });
    if (number && (*number < setting.lowest || *number > setting.highest))
        number.reset();
    return number;
}

void write_text(std::string_view name, const std::string& text)
{
    attempt([&] { ShellObject->RegWrite(full_name(name), text, "REG_SZ"); });
}

void write_number(const NumberSetting& setting, std::int32_t number)
{
    attempt([&] {
        ShellObject->RegWrite(full_name(setting.name), static_cast<std::uint32_t>(number),
                              "REG_DWORD");
    });
}

void write_default(const NumberSetting& setting)
{
    write_number(setting, setting.fallback);
}

/// Halves go to the even neighbour.
std::int32_t rounded(double number)
{
    return static_cast<std::int32_t>(std::nearbyint(number));
}

/// The number that was read, or the setting's default, which is then written too.
double or_default(std::optional<double> number, const NumberSetting& setting)
{
    if (number)
        return *number;
    write_default(setting);
    return setting.fallback;
}

double number_or_default(const NumberSetting& setting)
{
    return or_default(read_number(setting), setting);
}

} // namespace

void read_language()
{
    Idioma = trim_blanks(read_text(language_setting));
    if (fill_string_table(Idioma))
        return;
    Idioma = default_language;
    write_text(language_setting, Idioma);
    fill_string_table(Idioma);
}

void read_colour()
{
    // A colour alone is a whole number before it is held against its range.
    const auto stored = read_number(color_value_setting, std::nearbyint);
    ColorValue = rounded(or_default(stored, color_value_setting));
}

void read_shine()
{
    Shine = rounded(number_or_default(shine_value_setting) / 2);
}

void read_transparency_switch()
{
    const auto stored = read_number(chk_trans_setting);
    if (!stored || (*stored != 0 && *stored != 1))
        write_default(chk_trans_setting);
    TransEnabled = stored != 0.0;
    if (TransEnabled)
        SetOpacity(F1, 100);
}

void read_transparency()
{
    Transparency = rounded(number_or_default(transparency_setting));
}

std::int32_t read_hue()
{
    return rounded(number_or_default(scv_setting));
}

void write_changed_settings()
{
    if (Idioma != F1.LangAtOpen)
        write_text(language_setting, Idioma);
    if (ColorValue != ColorAtOpen) {
        write_number(color_value_setting, ColorValue);
        write_number(scv_setting, F1.Scroll1.Value);
    }
    if (Shine != F1.ShineAtOpen)
        write_number(shine_value_setting, F1.Scroll2.Value);
    if (TransEnabled != F1.ChkAtOpen)
        write_number(chk_trans_setting, F1.CheckTrans.Value);
    if (F1.Scroll3.Value != F1.TransAtOpen)
        write_number(transparency_setting, F1.Scroll3.Value);
}

} // namespace ostrelum::inline frame
