#include "platform/linux/MouseButtons.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <linux/input-event-codes.h>
#include <vector>

namespace ostrelum {

namespace {

/// The words of a text without blanks around them, the lowest first.
std::vector<std::string_view> words_of(std::string_view text)
{
    constexpr std::string_view blanks = " \n";
    std::vector<std::string_view> words;
    for (std::size_t start = text.find_first_not_of(blanks); start != std::string_view::npos;
         start = text.find_first_not_of(blanks, start)) {
        const std::size_t end = std::min(text.find_first_of(blanks, start), text.size());
        words.push_back(text.substr(start, end - start));
        start = end;
    }
    std::reverse(words.begin(), words.end());
    return words;
}

/// A word that is no number has no bit set.
std::uint64_t number(std::string_view word)
{
    std::uint64_t value = 0;
    const auto [rest, error] = std::from_chars(word.data(), word.data() + word.size(), value, 16);
    return error == std::errc() && rest == word.data() + word.size() ? value : 0;
}

/// A text of the kernel as numbered bits.
class Bits {
public:
    Bits(std::string_view text, unsigned word_bits) : words_(words_of(text)), word_bits_(word_bits)
    {
    }

    bool operator[](unsigned bit) const
    {
        const std::size_t word = bit / word_bits_;
        return word < words_.size() && ((number(words_[word]) >> (bit % word_bits_)) & 1U) != 0;
    }

private:
    std::vector<std::string_view> words_;
    unsigned word_bits_;
};

int buttons(const InputDevice& device, unsigned word_bits)
{
    const Bits key(device.key, word_bits);
    const Bits rel(device.rel, word_bits);
    const Bits abs(device.abs, word_bits);
    const bool moves = (rel[REL_X] && rel[REL_Y]) || (abs[ABS_X] && abs[ABS_Y]);
    // A finger without a left button is a touchpad that knows taps alone; neither is a touchscreen.
    if (!moves || !(key[BTN_LEFT] || key[BTN_TOOL_FINGER]))
        return 0;
    int count = 0;
    for (unsigned button = BTN_LEFT; button <= BTN_TASK; ++button)
        count += key[button] ? 1 : 0;
    const bool pad_is_button = Bits(device.properties, word_bits)[INPUT_PROP_BUTTONPAD];
    return pad_is_button ? std::max(count, 2) : count;
}

} // namespace

unsigned kernel_word_bits(std::span<const InputDevice> devices)
{
    constexpr std::size_t digits_of_32 = 8;
    for (const InputDevice& device : devices) {
        const auto words = words_of(device.key);
        const auto wide = [](std::string_view word) { return word.size() > digits_of_32; };
        if (std::any_of(words.begin(), words.end(), wide))
            return 64;
        if (!words.empty() && words.front() == "fffffffe")
            return 32;
    }
    return sizeof(long) * 8;
}

int mouse_buttons(std::span<const InputDevice> devices)
{
    const unsigned word_bits = kernel_word_bits(devices);
    int most = 0;
    for (const InputDevice& device : devices)
        most = std::max(most, buttons(device, word_bits));
    return most;
}

} // namespace ostrelum
