#pragma once

#include "platform/toolkit/Controls.h"
#include "platform/windows/toolkit/OwnedHandle.h"

namespace ostrelum::windows_platform {

/// The mouse cursors that the program asks for.
class Cursors {
public:
    /// `hand` is the picture of the hand cursor; the system's own hand without it.
    Cursors(const Picture& hand, Point hot_spot);

    HCURSOR get(MouseCursor cursor) const;
    /// The cursor that lies over those of all controls; Default for none.
    MouseCursor screen = MouseCursor::Default;

private:
    OwnedIcon hand_;
};

} // namespace ostrelum::windows_platform
