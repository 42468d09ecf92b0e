#pragma once

#include "platform/masking/Pseudonyms.h"

#include <functional>
#include <set>
#include <string>
#include <string_view>

namespace ostrelum::inline masking {

/// Who wrote a text, and so what may stand in it.
enum class Writer {
    /// A maker or the kernel: a word is meant as the word that it is, and only what can be nothing
    /// else is taken for an identity.
    Maker,
    /// A person may have had a say, as in the name of a Bluetooth keyboard.
    Person,
};

/// What identifies somebody, found in running text.
class KnownIdentities {
public:
    /// A name, a number, a label. Words that say nothing and the kernel's names of devices are left
    /// out, and so is what has fewer than three characters.
    void add(std::string_view identity);

    /// The same for the name of a person, of which each word tells.
    void add_person(std::string_view name);

    /// The text with pseudonyms for the identities that stand in it as words of their own, in any
    /// case of ASCII letters. Hardware addresses and UUIDs (RFC 9562) need not be known. A text
    /// that is a number stays. Takes time in proportion to the text's length.
    std::string hidden_in(std::string_view text, Writer writer, Pseudonyms& given) const;

private:
    std::size_t length_at(std::string_view lower, std::size_t at, Writer writer) const;

    /// In lower case, beginning and ending with a letter or a digit.
    std::set<std::string, std::less<>> all_;
    std::size_t longest_ = 0;
};

} // namespace ostrelum::inline masking
