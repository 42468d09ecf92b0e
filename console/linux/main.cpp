#include "console/Commands.h"
#include "console/linux/LinuxHost.h"

int main(int argc, char** argv)
{
    ostrelum::console::LinuxHost host;
    return ostrelum::console::run_console(host, {argv + 1, argv + argc});
}
