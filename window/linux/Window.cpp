#include "window/linux/Window.h"

#include "figures/Platform.h"
#include "figures/Shared.h"
#include "frame/Lifecycle.h"
#include "frame/MainForm.h"
#include "frame/Pictures.h"
#include "platform/linux/LinuxManagementService.h"
#include "platform/linux/LinuxSystem.h"
#include "platform/linux/services/MachineShell.h"
#include "platform/qt/QtBackEnd.h"

namespace ostrelum::window {

using namespace linux_platform;
using namespace qt_platform;
namespace {

/// This desktop's screens do not belong to a recorded machine.
SessionFactsSource session_of(const MachineSource& source)
{
    return source.root == "/" ? qt_session_facts() : SessionFactsSource();
}

} // namespace

int run_window(int& argc, char** argv, const MachineSource& source)
{
    LinuxSystem system(source.root, process_environment(), source.user);
    const QtLook look{.hand = art_picture("Hand"),
                      .hot_spot = {10, 3},
                      .desktop_entry = "dervalin-ostrelum",
                      .window_width = main_form_width,
                      .window_height = main_form_height};
    const auto toolkit = make_qt_toolkit(argc, argv, look);
    const auto clipboard = make_qt_clipboard();
    const auto save_dialog = make_qt_save_dialog();
    const auto browser = make_qt_browser();

    platform = {.toolkit = toolkit.get(),
                .registry = &system.registry,
                .clipboard = clipboard.get(),
                .save_dialog = save_dialog.get(),
                .file_writer = &system.file_writer,
                .browser = browser.get(),
                .clock = &system.clock,
                .regional = &system.regional,
                .system_api = &system.system_api,
                .ansi_code_page = &system.ansi_code_page,
                .get_object =
                    [&](const std::string&) {
                        return make_linux_management_service(source.root, session_of(source));
                    },
                .create_object =
                    [&](const std::string& class_name) {
                        return std::make_unique<MachineShell>(source.root,
                                                              system.create_object(class_name));
                    }};
    start_program();
    const int exit_code = toolkit->run();
    // The management service goes before what it stands on.
    reset_shared_state();
    return exit_code;
}

} // namespace ostrelum::window
