#include "window/Window.h"

int main(int argc, char** argv)
{
    return ostrelum::run_window(argc, argv, {});
}
