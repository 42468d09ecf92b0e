#pragma once

#include "sources/Value.h"

#include <string>
#include <string_view>

namespace ostrelum::inline wql {

/// A token of a query: a name or keyword, a literal of text or number, a symbol such as "<=".
struct WqlToken {
    enum class Kind { Name, Literal, Symbol, End };
    Kind kind = Kind::End;
    /// As written.
    std::string_view text;
    /// Of a literal.
    Value value;
};

/// Takes a query apart into tokens. The text must outlive it.
class WqlLexer {
public:
    /// This and each taking throw Failure if what comes next is no token.
    explicit WqlLexer(std::string_view text);

    /// The next token, not taken yet.
    const WqlToken& next() const { return next_; }

    WqlToken take();

    /// Takes the next token if it is that keyword.
    bool take_keyword(std::string_view keyword);

    /// Takes the next token if it is that symbol.
    bool take_symbol(std::string_view symbol);

private:
    WqlToken read();
    WqlToken read_text();
    WqlToken read_number();
    std::string_view cut(std::size_t length);

    std::string_view rest_;
    WqlToken next_;
};

/// The refusal of a token that must not stand where it does.
[[noreturn]] void refuse_token(const WqlToken& token);

} // namespace ostrelum::inline wql
