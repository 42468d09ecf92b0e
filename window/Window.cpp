#include "window/Window.h"

#include "figures/Platform.h"
#include "frame/Life.h"
#include "frame/Pictures.h"
#include "platform/linux/LinuxManagementService.h"
#include "platform/linux/LinuxSystem.h"
#include "platform/linux/services/MachineShell.h"
#include "platform/qt/QtBackEnd.h"

namespace ostrelum::window {

using namespace linux_platform;
using namespace qt_platform;
namespace {

/// The machine of a process that has a window: what the window leaves to the desktop is handed over
/// before the end.
class WindowMachine : public LinuxMachine {
public:
    using LinuxMachine::LinuxMachine;

    void End() override
    {
        prepare_end();
        LinuxMachine::End();
    }
};

Environment environment_of(const ShownMachine& shown)
{
    Environment environment = process_environment();
    if (shown.user)
        environment["UserName"] = *shown.user;
    return environment;
}

/// The screens that we are on are none of a recorded machine's.
SessionFactsSource session_of(const ShownMachine& shown)
{
    return shown.root == "/" ? qt_session_facts() : SessionFactsSource();
}

} // namespace

int run_window(int& argc, char** argv, const ShownMachine& shown)
{
    LinuxSystem system(shown.root, environment_of(shown));
    WindowMachine machine(shown.root, system.environment);
    const QtLook look{
        .hand = art_picture("Hand"), .hot_spot = {10, 3}, .desktop_entry = "dervalin-ostrelum"};
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
                .machine = &machine,
                .get_object =
                    [&](const std::string&) {
                        return make_linux_management_service(shown.root, session_of(shown));
                    },
                .create_object =
                    [&](const std::string& class_name) {
                        return std::make_unique<MachineShell>(shown.root,
                                                              system.create_object(class_name));
                    }};
    start_program();
    return toolkit->run();
}

} // namespace ostrelum::window
