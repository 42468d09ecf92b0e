#pragma once

#include "platform/toolkit/Events.h"

#include <vector>

namespace ostrelum::inline frame {

/// The tables of handlers of the main window. Each unit that handles events of F1 lists its
/// handlers at its foot; here they come together.
std::vector<HandlerTable> main_form_handlers();

extern const HandlerTable lifecycle_handlers;
extern const HandlerTable navigation_handlers;
extern const HandlerTable page_menu_handlers;
extern const HandlerTable language_handlers;
extern const HandlerTable shortcut_handlers;

} // namespace ostrelum::inline frame
