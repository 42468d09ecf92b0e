#pragma once

#include <string>

/// The keyboard and the pointing device. An empty text is unknown.
namespace ostrelum::inline figures {

/// Asks for both and takes in the first of each: Datos 1 and 2 are the keyboard's name and kind, 3
/// and 4 the pointing device's name and maker, 5 the number of mouse buttons, 6 and 7 the codes of
/// the device's interface and of the hand that it is set for.
void read_input();

/// Datos 5, from two buttons on.
std::string mouse_buttons();
/// What the code in Datos 6 stands for.
std::string pointer_interface();
/// What the code in Datos 7 stands for.
std::string handedness();

} // namespace ostrelum::inline figures
