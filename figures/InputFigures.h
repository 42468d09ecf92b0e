#pragma once

#include <string>

/// The keyboard and the pointing device. An empty text is unknown.
namespace ostrelum::inline figures {

/// The slots of Datos that read_input fills.
enum class InputSlot {
    KeyboardName = 1,
    KeyboardType,
    MouseName,
    MouseManufacturer,
    MouseButtons,
    MouseInterface,  ///< a code
    MouseHandedness, ///< a code
};

/// Asks for keyboards and pointing devices and reads the first of each.
void read_input();

/// The number of mouse buttons, from two on.
std::string mouse_buttons();
/// What the code of the interface stands for.
std::string pointer_interface();
/// Which hand the device is set for.
std::string handedness();

} // namespace ostrelum::inline figures
