#pragma once

#include <string>

namespace ostrelum::inline system {

/// The user's clipboard, plain text only. Both operations throw Failure if the clipboard cannot be
/// had.
class Clipboard {
public:
    virtual ~Clipboard() = default;
    virtual void Clear() = 0;
    /// `text` is UTF-8.
    virtual void SetText(const std::string& text) = 0;
};

} // namespace ostrelum::inline system
