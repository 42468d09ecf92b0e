#include "frame/Opacity.h"

#include "figures/Platform.h"

#include <algorithm>

namespace ostrelum::inline frame {

void SetOpacity(Form& form, std::int16_t percent)
{
    const int alpha = std::clamp((100 - percent) * 255 / 100, 0, 255);
    Toolkit& toolkit = *platform.toolkit;
    const std::int32_t style = toolkit.GetWindowLongA(form, GWL_EXSTYLE);
    toolkit.SetWindowLongA(form, GWL_EXSTYLE, style | WS_EX_LAYERED);
    toolkit.SetLayeredWindowAttributes(form, 0, static_cast<std::uint8_t>(alpha), LWA_ALPHA);
}

} // namespace ostrelum::inline frame
