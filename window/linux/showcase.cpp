#include "platform/linux/files/Sysroot.h"
#include "platform/linux/recording/RecordedSystemCalls.h"
#include "platform/system/Failure.h"
#include "window/linux/Window.h"

#include <iostream>
#include <string_view>

using namespace ostrelum;
using namespace ostrelum::linux_platform;
using namespace ostrelum::window;

namespace {

constexpr const char* usage =
    "Usage: ostrelum-showcase --sysroot DIR [--user NAME]\n"
    "\n"
    "Shows a recorded machine in the program's window.\n"
    "  --sysroot DIR  root folder of the machine\n"
    "  --user NAME    the account of the user page, if not the recording's\n";

/// What the command line asks for; nothing if it is wrong.
std::optional<MachineSource> read_options(int argc, char** argv)
{
    MachineSource source;
    for (int i = 1; i < argc; i += 2) {
        const std::string_view name = argv[i];
        const std::string value = i + 1 < argc ? argv[i + 1] : "";
        if (value.empty() || (name != "--sysroot" && name != "--user"))
            return std::nullopt;
        if (name == "--sysroot")
            source.root = value;
        else
            source.user = value;
    }
    return argc > 1 ? std::optional(source) : std::nullopt;
}

} // namespace

int main(int argc, char** argv)
{
    auto source = read_options(argc, argv);
    if (!source) {
        std::cerr << usage;
        return 2;
    }
    try {
        // Opened here, since the window passes over a machine that is not there.
        const Sysroot there(source->root);
        if (!source->user && !there.is_live())
            source->user = recorded_system_calls(there)->variable("UserName").value_or("");
    } catch (const Failure& failure) {
        std::cerr << "ostrelum-showcase: " << failure.what() << '\n';
        return 1;
    }
    int own_name = 1;
    return run_window(own_name, argv, *source);
}
