#include "figures/Platform.h"
#include "figures/Shared.h"
#include "frame/Lifecycle.h"
#include "frame/MainForm.h"
#include "frame/Pictures.h"
#include "platform/windows/WindowsSystem.h"
#include "platform/windows/services/Shell.h"
#include "platform/windows/services/WmiService.h"
#include "platform/windows/toolkit/WindowsBackEnd.h"

using namespace ostrelum;
using namespace ostrelum::windows_platform;

int WINAPI wWinMain(HINSTANCE, HINSTANCE, wchar_t*, int)
{
    WindowsSystem system;
    const auto toolkit = make_windows_toolkit({.hand = art_picture("Hand"),
                                               .hot_spot = {10, 3},
                                               .window_width = main_form_width,
                                               .window_height = main_form_height});
    const auto clipboard = make_windows_clipboard();
    const auto save_dialog = make_windows_save_dialog();

    platform = {.toolkit = toolkit.get(),
                .registry = &system.registry,
                .clipboard = clipboard.get(),
                .save_dialog = save_dialog.get(),
                .file_writer = &system.file_writer,
                .browser = &system.browser,
                .clock = &system.clock,
                .regional = &system.regional,
                .system_api = &system.system_api,
                .ansi_code_page = &system.ansi_code_page,
                .get_object = make_wmi_service,
                .create_object = make_shell};
    start_program();
    const int exit_code = toolkit->run();
    // What the services gave out goes before them.
    reset_shared_state();
    return exit_code;
}
