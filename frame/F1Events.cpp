#include "frame/F1Events.h"

#include "commands/Commands.h"
#include "skin/Skin.h"

namespace ostrelum {

std::vector<HandlerTable> main_form_handlers()
{
    return {life_handlers,     navigation_handlers, page_menu_handlers,
            language_handlers, cross_fade_handlers, copy_handlers};
}

} // namespace ostrelum
