#include "window/linux/Window.h"

int main(int argc, char** argv)
{
    return ostrelum::window::run_window(argc, argv, {});
}
