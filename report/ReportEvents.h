#pragma once

#include "platform/toolkit/Events.h"

#include <vector>

namespace ostrelum::inline report {

/// The tables of handlers of the report dialog.
std::vector<HandlerTable> report_form_handlers();

extern const HandlerTable report_dialog_handlers;
extern const HandlerTable save_handlers;

} // namespace ostrelum::inline report
