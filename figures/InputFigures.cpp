#include "figures/InputFigures.h"

#include "figures/Numbers.h"
#include "figures/PassOver.h"
#include "figures/Platform.h"
#include "figures/Slots.h"
#include "sources/CodeTable.h"

#include <optional>

namespace ostrelum::inline figures {
namespace {

using Slot = InputSlot;

/// The key of a text, or a text that is the same in all languages.
struct Word {
    std::optional<Text> key;
    const char* fixed = "";
};

/// DMTF CIM schema as the service extends it, Win32_PointingDevice.DeviceInterface.
constexpr auto interfaces = std::to_array<CodeRow<Word>>({
    {3, {.key = Text::SerialPort}},
    {4, {.fixed = "PS/2"}},
    {5, {.key = Text::Infrared}},
    {162, {.fixed = "USB"}},
});
static_assert(rising(interfaces));

/// DMTF CIM schema, CIM_PointingDevice.Handedness.
constexpr auto hands = std::to_array<CodeRow<Word>>({
    {1, {.key = Text::NotApplicable}},
    {2, {.key = Text::RightHanded}},
    {3, {.key = Text::LeftHanded}},
});
static_assert(rising(hands));

template <std::size_t Count>
std::string word_of(const std::array<CodeRow<Word>, Count>& rows, const std::string& code)
{
    const CodeRow<Word>* row = find_code(rows, code);
    if (!row)
        return "";
    return row->text.key ? Trad[*row->text.key] : row->text.fixed;
}

} // namespace

void read_input()
{
    clear(Datos, Slot::KeyboardName, Slot::MouseHandedness);
    query("Select Name, Description from Win32_Keyboard");
    first(WmiResult, [](const Instance& item) {
        attempt([&] { Datos[Slot::KeyboardName] = trimmed(item["Name"]); });
        attempt([&] { Datos[Slot::KeyboardType] = trimmed(item["Description"]); });
    });
    query("Select Name, Manufacturer, DeviceInterface, Handedness from Win32_PointingDevice");
    first(WmiResult, [](const Instance& item) {
        attempt([&] { Datos[Slot::MouseName] = trimmed(item["Name"]); });
        attempt([&] { Datos[Slot::MouseManufacturer] = trimmed(item["Manufacturer"]); });
        attempt([&] { Datos[Slot::MouseInterface] = trimmed(item["DeviceInterface"]); });
        attempt([&] { Datos[Slot::MouseHandedness] = trimmed(item["Handedness"]); });
    });
    attempt([] {
        Datos[Slot::MouseButtons] =
            std::to_string(platform.system_api->GetSystemMetrics(mouse_button_count));
    });
}

std::string mouse_buttons()
{
    return at_least(Datos[Slot::MouseButtons], 2) ? Datos[Slot::MouseButtons] : "";
}

std::string pointer_interface()
{
    return word_of(interfaces, Datos[Slot::MouseInterface]);
}

std::string handedness()
{
    return word_of(hands, Datos[Slot::MouseHandedness]);
}

} // namespace ostrelum::inline figures
