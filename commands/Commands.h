#pragma once

#include "platform/toolkit/Events.h"

/// What the small commands offer to the rest of the program.
namespace ostrelum::inline commands {

/// Copy and Copy all of the page's right-click menu.
extern const HandlerTable copy_handlers;

/// The about panel, and the program's page in the browser.
extern const HandlerTable about_panel_handlers;

} // namespace ostrelum::inline commands
