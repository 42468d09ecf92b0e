#pragma once

#include "platform/toolkit/Form.h"
#include "platform/windows/toolkit/OwnedHandle.h"

#include <optional>

namespace ostrelum::windows_platform {

/// A menu that is to come up.
struct MenuRequest {
    const PopupMenu* menu = nullptr;
    /// A point of the screen.
    POINT at{};
    /// The default entry, if any.
    const MenuItem* bold = nullptr;
};

/// Shows a menu of a form until the user has chosen or left it: the place of the chosen entry in
/// Form::controls.
std::optional<int> choose_from_menu(const Form& form, const MenuRequest& request, HWND window);

} // namespace ostrelum::windows_platform
