#include "platform/toolkit/WindowStyles.h"

namespace ostrelum::inline toolkit {

std::int32_t WindowStyles::get(const Form& form, int index) const
{
    const auto style = styles_.find(&form);
    if (style == styles_.end() || !style->second.longs.contains(index))
        return 0;
    return style->second.longs.at(index);
}

void WindowStyles::set(const Form& form, int index, std::int32_t value)
{
    styles_[&form].longs[index] = value;
}

bool WindowStyles::is_layered(const Form& form) const
{
    return (get(form, extended_style_index) & layered_style) != 0;
}

bool WindowStyles::set_alpha(const Form& form, std::uint8_t alpha, std::uint32_t flags)
{
    if (!is_layered(form) || (flags & alpha_flag) == 0)
        return false;
    styles_[&form].alpha = alpha;
    return true;
}

std::uint8_t WindowStyles::alpha(const Form& form) const
{
    return is_layered(form) ? styles_.at(&form).alpha : opaque;
}

} // namespace ostrelum::inline toolkit
