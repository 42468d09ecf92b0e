#include "console/Commands.h"
#include "console/windows/ConsoleText.h"
#include "console/windows/WindowsHost.h"
#include "platform/windows/services/Wide.h"

extern "C" int wmain(int argc, wchar_t** argv);

int wmain(int argc, wchar_t** argv)
{
    const ostrelum::console::StandardStreams streams;
    std::vector<std::string> arguments;
    for (int i = 1; i < argc; ++i)
        arguments.push_back(ostrelum::windows_platform::narrow(argv[i]));
    ostrelum::console::WindowsHost host;
    return ostrelum::console::run_console(host, arguments);
}
