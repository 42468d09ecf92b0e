#pragma once

#include <string_view>
#include <vector>

namespace ostrelum::linux_platform {

/// Numbered bits as the kernel's input layer writes them: hexadecimal words, the highest word
/// first, each word a `long` of the kernel that wrote them. A word that is no number has no bit
/// set. It points into the text.
class CapabilityBits {
public:
    /// `word_bits` is 32 or 64.
    CapabilityBits(std::string_view text, unsigned word_bits);

    bool operator[](unsigned bit) const;

private:
    /// The lowest first.
    std::vector<std::string_view> words_;
    unsigned word_bits_;
};

} // namespace ostrelum::linux_platform
