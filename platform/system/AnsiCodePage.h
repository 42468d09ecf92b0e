#pragma once

#include <string>
#include <string_view>

namespace ostrelum::inline system {

/// The code page of programs that do not know Unicode, in which a report is saved.
class AnsiCodePage {
public:
    virtual ~AnsiCodePage() = default;
    /// UTF-8 text in the code page; "?" for a character that it does not have.
    virtual std::string encoded(std::string_view utf8) = 0;
};

} // namespace ostrelum::inline system
