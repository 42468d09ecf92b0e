#pragma once

#include "platform/toolkit/Picture.h"

#include <string_view>

namespace ostrelum::inline frame {

/// The picture art/pictures/NAME.png, at double size NAME@2x.png, always the same for a name. No
/// picture for a name that is not there.
Picture art_picture(std::string_view name);

} // namespace ostrelum::inline frame
