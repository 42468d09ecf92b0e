#pragma once

#include "platform/toolkit/Controls.h"

#include <cstdint>

namespace ostrelum::inline skin {

/// Draws the picture that `source` stores over the one that `dest` stores, with an opacity of alpha
/// / 255. A box that stores no picture counts as white, the colour of the page.
void BlendPicture(PictureBox& dest, const PictureBox& source, std::uint8_t alpha);

} // namespace ostrelum::inline skin
