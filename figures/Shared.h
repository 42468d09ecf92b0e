#pragma once

#include "figures/Bound.h"
#include "figures/Slots.h"
#include "figures/StringTable.h"
#include "platform/system/Shell.h"
#include "platform/system/SystemApi.h"
#include "sources/ManagementService.h"

#include <cstdint>
#include <string>

/// The state that the whole program shares. Everything runs on one thread, so nothing is locked.
namespace ostrelum::inline figures {

/// What FontsOk is when the preferred fonts are installed.
inline constexpr std::uint8_t preferred_fonts = 32;

/// All of the state, in one object, so that putting it back cannot forget a part of it.
struct SharedState {
    /// The texts in the language of the run.
    StringTable Trad;

    /// The management service, bound at start and kept until exit.
    Bound<ManagementService> WmiService;
    /// The objects of the last query; one result exists at a time.
    ResultSet WmiResult;
    /// The object at which the current walk stands.
    Instance WmiItem;
    /// Stored settings and the user's folders, created at start.
    Bound<Shell> ShellObject;

    /// The language of the run: "English", "Spanish" or "Dutch".
    std::string Idioma;

    /// Values of the page or report stage being built. Each reader names the slots that it fills.
    TextSlots<12> Datos;
    /// The texts of the CDs and DVDs page, kept as long as the page stays open.
    TextSlots<8> DatosCD;
    /// Scratch text, meaningful only inside one operation.
    std::string TempStr;
    /// Loop counter; the window fades keep their level in it, in percent of transparency.
    std::int32_t Cnt = 0;
    /// Second counter; the cross-fade of the page picture keeps its level in it, 0 to 255.
    std::int32_t Cnt2 = 0;
    /// Working numbers of a page or report stage: sizes, totals, speeds.
    std::int32_t Num1 = 0;
    std::int32_t Num2 = 0;
    /// Total memory that the RAM page last found, in KB. Its ticks work on from here: a report that
    /// is made while the page is open uses Num1 for its own sums.
    std::int32_t ram_total = 0;

    /// Skin colour, 0x00BBGGRR, 255 to 16776960.
    std::int32_t ColorValue = 0;
    /// Skin colour when the customise panel opened.
    std::int32_t ColorAtOpen = 0;
    /// The bytes of the skin colour.
    std::uint8_t BaseR = 0;
    std::uint8_t BaseG = 0;
    std::uint8_t BaseB = 0;
    /// Brightness of the skin, 0 to 24.
    std::int32_t Shine = 0;
    /// Text colour of the skin, each 0 to 255.
    std::int32_t SkinR = 0;
    std::int32_t SkinG = 0;
    std::int32_t SkinB = 0;

    /// Transparency of the window in percent, 0 to 80.
    std::int32_t Transparency = 0;
    /// The window may be transparent, and fades in and out.
    bool TransEnabled = false;
    /// preferred_fonts where they are installed, else 0.
    std::uint8_t FontsOk = 0;

    /// What the last GetOstrelum returned.
    SystemInfo SysInfo;
};

inline SharedState shared_state;

/// The parts, by the names under which the program knows them.
inline auto& Trad = shared_state.Trad;
inline auto& WmiService = shared_state.WmiService;
inline auto& WmiResult = shared_state.WmiResult;
inline auto& WmiItem = shared_state.WmiItem;
inline auto& ShellObject = shared_state.ShellObject;
inline auto& Idioma = shared_state.Idioma;
inline auto& Datos = shared_state.Datos;
inline auto& DatosCD = shared_state.DatosCD;
inline auto& TempStr = shared_state.TempStr;
inline auto& Cnt = shared_state.Cnt;
inline auto& Cnt2 = shared_state.Cnt2;
inline auto& Num1 = shared_state.Num1;
inline auto& Num2 = shared_state.Num2;
inline auto& ram_total = shared_state.ram_total;
inline auto& ColorValue = shared_state.ColorValue;
inline auto& ColorAtOpen = shared_state.ColorAtOpen;
inline auto& BaseR = shared_state.BaseR;
inline auto& BaseG = shared_state.BaseG;
inline auto& BaseB = shared_state.BaseB;
inline auto& Shine = shared_state.Shine;
inline auto& SkinR = shared_state.SkinR;
inline auto& SkinG = shared_state.SkinG;
inline auto& SkinB = shared_state.SkinB;
inline auto& Transparency = shared_state.Transparency;
inline auto& TransEnabled = shared_state.TransEnabled;
inline auto& FontsOk = shared_state.FontsOk;
inline auto& SysInfo = shared_state.SysInfo;

/// Puts all of it back to the state of a process that has just begun.
inline void reset_shared_state()
{
    shared_state = {};
}

} // namespace ostrelum::inline figures
