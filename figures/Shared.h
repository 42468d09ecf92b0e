#pragma once

#include "figures/Bound.h"
#include "figures/Slots.h"
#include "figures/StringTable.h"
#include "platform/system/Machine.h"
#include "platform/system/Shell.h"
#include "sources/ManagementService.h"

#include <cstdint>
#include <string>

/// The state that the whole program shares. Everything runs on one thread, so nothing is locked.
namespace ostrelum::inline figures {

/// The management service, bound at start and kept until exit.
inline Bound<ManagementService> WmiService;
/// The objects of the last query; one result exists at a time.
inline ResultSet WmiResult;
/// The object at which the current walk stands.
inline Instance WmiItem;
/// Stored settings and the user's folders, created at start.
inline Bound<Shell> ShellObject;

/// The language of the run: "English", "Spanish" or "Dutch".
inline std::string Idioma;

/// Values of the page or report stage being built. Each reader names the slots that it fills.
inline TextSlots<12> Datos;
/// The texts of the CDs and DVDs page, kept as long as the page stays open.
inline TextSlots<8> DatosCD;
/// Scratch text, meaningful only inside one operation.
inline std::string TempStr;
/// Loop counter; the window fades keep their level in it, in percent of transparency.
inline std::int32_t Cnt = 0;
/// Second counter; the cross-fade of the page picture keeps its level in it, 0 to 255.
inline std::int32_t Cnt2 = 0;
/// Working numbers of a page or report stage: sizes, totals, speeds.
inline std::int32_t Num1 = 0;
inline std::int32_t Num2 = 0;
/// Total memory that the RAM page last found, in KB. Its ticks work on from here: a report that is
/// made while the page is open uses Num1 for its own sums.
inline std::int32_t ram_total = 0;

/// Skin colour, 0x00BBGGRR, 255 to 16776960.
inline std::int32_t ColorValue = 0;
/// Skin colour when the customise panel opened.
inline std::int32_t ColorAtOpen = 0;
/// The bytes of the skin colour.
inline std::uint8_t BaseR = 0;
inline std::uint8_t BaseG = 0;
inline std::uint8_t BaseB = 0;
/// Brightness of the skin, 0 to 24.
inline std::int32_t Shine = 0;
/// Text colour of the skin, each 0 to 255.
inline std::int32_t SkinR = 0;
inline std::int32_t SkinG = 0;
inline std::int32_t SkinB = 0;

/// Transparency of the window in percent, 0 to 80.
inline std::int32_t Transparency = 0;
/// The window may be transparent, and fades in and out.
inline bool TransEnabled = false;
/// What FontsOk is when the preferred fonts are installed.
inline constexpr std::uint8_t preferred_fonts = 32;
/// preferred_fonts, else 0.
inline std::uint8_t FontsOk = 0;

/// What the last GetOstrelum told.
inline SystemInfo SysInfo;

/// Puts all of the above, and the string table, back to the state of a process that has just begun.
void reset_shared_state();

} // namespace ostrelum::inline figures
