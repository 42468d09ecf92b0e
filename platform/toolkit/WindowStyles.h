#pragma once

#include "platform/toolkit/Toolkit.h"

#include <map>

namespace ostrelum::inline toolkit {

/// Style and opacity of each form. They may be set before the form's window exists, and are
/// forgotten when it closes.
class WindowStyles {
public:
    /// Alpha of a window that nothing shows through.
    static constexpr std::uint8_t opaque = 255;

    std::int32_t get(const Form& form, int index) const;
    void set(const Form& form, int index, std::int32_t value);
    /// False for a window that is not layered: it has no alpha to set.
    bool set_alpha(const Form& form, std::uint8_t alpha, std::uint32_t flags);
    std::uint8_t alpha(const Form& form) const;
    /// The form's window closes.
    void forget(const Form& form) { styles_.erase(&form); }

private:
    struct Style {
        std::map<int, std::int32_t> longs;
        std::uint8_t alpha = opaque;
    };
    bool is_layered(const Form& form) const;

    std::map<const Form*, Style> styles_;
};

} // namespace ostrelum::inline toolkit
