#pragma once

#include <span>
#include <string>
#include <string_view>

namespace ostrelum::linux_platform {

/// What the kernel's input layer says about a device: texts of hexadecimal words, the highest word
/// first, each word a `long` of the kernel that wrote them. Bit numbers are those of
/// linux/input-event-codes.h.
struct InputDevice {
    std::string key;
    std::string rel;
    std::string abs;
    std::string properties;
};

/// Bits in a word of the kernel that wrote these texts, 32 or 64: known by a word that needs more
/// than 32, or by a keyboard whose lowest word is full. Without such a device, this program's own.
unsigned kernel_word_bits(std::span<const InputDevice> devices);

/// Whether a device points: a mouse, touchpad, stick or trackball, not a touchscreen.
bool is_pointer(const InputDevice& device, unsigned word_bits);

/// Whether a device that points does so by a finger on it.
bool is_touchpad(const InputDevice& device, unsigned word_bits);

/// Whether a device has the keys to write with.
bool is_keyboard(const InputDevice& device, unsigned word_bits);

/// Buttons of the pointer that has most of them; 0 without a pointer. A touchpad that is itself the
/// button has at least two, its halves.
int mouse_buttons(std::span<const InputDevice> devices);

} // namespace ostrelum::linux_platform
