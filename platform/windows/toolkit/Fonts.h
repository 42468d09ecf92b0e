#pragma once

#include "platform/toolkit/Toolkit.h"
#include "platform/windows/toolkit/OwnedHandle.h"
#include "platform/windows/toolkit/Scale.h"

#include <string_view>
#include <vector>

namespace ostrelum::windows_platform {

/// The fonts in use, each made once. Letters are smoothed as the user has set it up, and where a
/// family is missing the system has another stand in.
class Fonts {
public:
    HFONT get(const FontSpec& spec, Scale scale);

private:
    struct Made {
        FontSpec spec;
        Scale scale;
        OwnedFont font;
    };
    std::vector<Made> made_;
};

/// What of a text lies on the screen.
struct InkSize {
    SIZE text{};
    /// Pixels that the first letter, and the last, lean out of the text, 0 or more.
    int left = 0;
    int right = 0;
};

/// Of a text as a label draws it on one line, in the screen's pixels.
InkSize measure(std::wstring_view text, HFONT font);

} // namespace ostrelum::windows_platform
