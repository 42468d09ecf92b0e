#include "platform/linux/formats/CapabilityBits.h"

#include "platform/linux/text/Text.h"

#include <algorithm>

namespace ostrelum::linux_platform {

CapabilityBits::CapabilityBits(std::string_view text, unsigned word_bits)
    : words_(words_of(trimmed_space(text))), word_bits_(word_bits)
{
    std::ranges::reverse(words_);
}

bool CapabilityBits::operator[](unsigned bit) const
{
    const std::size_t word = bit / word_bits_;
    if (word >= words_.size())
        return false;
    return ((whole_number(words_[word], 16).value_or(0) >> (bit % word_bits_)) & 1U) != 0;
}

} // namespace ostrelum::linux_platform
