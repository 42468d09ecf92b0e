#include "platform/linux/formats/MouseButtons.h"

#include "platform/linux/formats/CapabilityBits.h"
#include "platform/linux/text/Text.h"

#include <algorithm>
#include <linux/input-event-codes.h>

namespace ostrelum::linux_platform {

namespace {

int buttons(const InputDevice& device, unsigned word_bits)
{
    if (!is_pointer(device, word_bits))
        return 0;
    const CapabilityBits key(device.key, word_bits);
    int count = 0;
    for (unsigned button = BTN_LEFT; button <= BTN_TASK; ++button)
        count += key[button] ? 1 : 0;
    const bool pad_is_button = CapabilityBits(device.properties, word_bits)[INPUT_PROP_BUTTONPAD];
    return pad_is_button ? std::max(count, 2) : count;
}

} // namespace

unsigned kernel_word_bits(std::span<const InputDevice> devices)
{
    constexpr std::size_t digits_of_32 = 8;
    for (const InputDevice& device : devices) {
        const auto words = words_of(trimmed_space(device.key));
        const auto wide = [](std::string_view word) { return word.size() > digits_of_32; };
        if (std::any_of(words.begin(), words.end(), wide))
            return 64;
        if (!words.empty() && words.back() == "fffffffe")
            return 32;
    }
    return sizeof(long) * 8;
}

bool is_pointer(const InputDevice& device, unsigned word_bits)
{
    const CapabilityBits key(device.key, word_bits);
    const CapabilityBits rel(device.rel, word_bits);
    const CapabilityBits abs(device.abs, word_bits);
    const bool moves = (rel[REL_X] && rel[REL_Y]) || (abs[ABS_X] && abs[ABS_Y]);
    // A finger without a left button is a touchpad that knows taps alone; neither is a touchscreen.
    return moves && (key[BTN_LEFT] || key[BTN_TOOL_FINGER]);
}

bool is_touchpad(const InputDevice& device, unsigned word_bits)
{
    const CapabilityBits abs(device.abs, word_bits);
    return abs[ABS_X] && abs[ABS_Y] && CapabilityBits(device.key, word_bits)[BTN_TOOL_FINGER];
}

bool is_keyboard(const InputDevice& device, unsigned word_bits)
{
    const CapabilityBits key(device.key, word_bits);
    // All of the first 31, as udev asks for: remote controls and rows of buttons have some of them.
    for (unsigned code = KEY_ESC; code <= KEY_S; ++code) {
        if (!key[code])
            return false;
    }
    return true;
}

int mouse_buttons(std::span<const InputDevice> devices)
{
    const unsigned word_bits = kernel_word_bits(devices);
    int most = 0;
    for (const InputDevice& device : devices)
        most = std::max(most, buttons(device, word_bits));
    return most;
}

} // namespace ostrelum::linux_platform
