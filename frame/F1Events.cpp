#include "frame/F1Events.h"

#include "commands/Commands.h"
#include "report/Report.h"
#include "sections/Sections.h"
#include "skin/Skin.h"

namespace ostrelum::inline frame {

std::vector<HandlerTable> main_form_handlers()
{
    return {lifecycle_handlers,       navigation_handlers,  page_menu_handlers,
            language_handlers,        cross_fade_handlers,  copy_handlers,
            customise_panel_handlers, about_panel_handlers, live_refresh_handlers,
            report_command_handlers,  shortcut_handlers};
}

} // namespace ostrelum::inline frame
