#include "frame/Life.h"
#include "frame/Pictures.h"
#include "frame/Platform.h"
#include "platform/linux/LinuxManagementService.h"
#include "platform/linux/LinuxSystem.h"
#include "platform/linux/MachineShell.h"
#include "platform/qt/QtBackEnd.h"

using namespace ostrelum;

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

} // namespace

int main(int argc, char** argv)
{
    LinuxSystem system;
    WindowMachine machine("/", system.environment);
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
                .GetObject =
                    [](const std::string&) {
                        return make_linux_management_service("/", qt_session_facts());
                    },
                .CreateObject =
                    [&](const std::string& class_name) {
                        return std::make_unique<MachineShell>("/", system.CreateObject(class_name));
                    }};
    start_program();
    return toolkit->run();
}
