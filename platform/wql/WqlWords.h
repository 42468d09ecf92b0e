#pragma once

#include "sources/Value.h"

#include <string>
#include <string_view>

namespace ostrelum {

/// A word of a query: a name or keyword, a literal of text or number, a sign such as "<=".
struct WqlWord {
    enum class Kind { Name, Literal, Sign, End };
    Kind kind = Kind::End;
    /// As written.
    std::string_view text;
    /// Of a literal.
    Value value;
};

/// Takes a query apart into words. The text must outlive it.
class WqlWords {
public:
    /// This and each taking throw Failure if what comes next is no word.
    explicit WqlWords(std::string_view text);

    /// The next word, not taken yet.
    const WqlWord& next() const { return next_; }

    WqlWord take();

    /// Takes the next word if it is that keyword.
    bool take_keyword(std::string_view keyword);

    /// Takes the next word if it is that sign.
    bool take_sign(std::string_view sign);

private:
    WqlWord read();
    WqlWord read_text();
    WqlWord read_number();
    std::string_view cut(std::size_t length);

    std::string_view rest_;
    WqlWord next_;
};

/// The refusal of a word that must not stand where it does.
[[noreturn]] void refuse_word(const WqlWord& word);

} // namespace ostrelum
