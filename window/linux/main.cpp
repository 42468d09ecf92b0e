#include "window/linux/Window.h"

int main(int, char** argv)
{
    // The program has no options; the toolkit would take its own from what follows the name.
    int own_name = 1;
    return ostrelum::window::run_window(own_name, argv, {});
}
