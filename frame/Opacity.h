#pragma once

#include "platform/toolkit/Form.h"

#include <cstdint>

namespace ostrelum::inline frame {

/// A step of a window's fade, in percent of transparency.
inline constexpr int fade_step = 9;

/// Makes a window see-through by a percentage: 0 is opaque, 100 invisible; what lies outside is
/// clamped.
void SetOpacity(Form& form, std::int16_t percent);

} // namespace ostrelum::inline frame
