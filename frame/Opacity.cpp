#include "frame/Opacity.h"

#include "figures/Platform.h"

#include <algorithm>

namespace ostrelum::inline frame {

void SetOpacity(Form& form, std::int16_t percent)
{
    const int alpha = std::clamp((100 - percent) * 255 / 100, 0, 255);
    Toolkit& toolkit = *platform.toolkit;
    const std::int32_t style = toolkit.GetWindowLongA(form, extended_style_index);
    toolkit.SetWindowLongA(form, extended_style_index, style | layered_style);
    toolkit.SetLayeredWindowAttributes(form, 0, static_cast<std::uint8_t>(alpha), alpha_flag);
}

} // namespace ostrelum::inline frame
