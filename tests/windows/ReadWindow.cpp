// For each line that it reads, prints what the windows of the program say, as any other program of
// the system is told it: a record for each that shows, followed by one for each of its controls.
//
// A window's fields are "form", "menu" or "dialog", the last for one of the system's own, its
// opacity from 0 to 255, whether it takes input, left, top, width and height of its client area on
// the screen, and its title. A control's are its number, whether it shows, whether it takes input,
// the place of its window on the screen, and its text.
#include "platform/windows/services/Wide.h"

#include <algorithm>
#include <iostream>
#include <iterator>
#include <string>
#include <string_view>

#include <windows.h>

using namespace ostrelum::windows_platform;

namespace {

struct Kind {
    std::wstring_view window_class;
    const char* name;
};
constexpr Kind kinds[] = {
    {L"Dervalin Ostrelum", "form"}, {L"#32768", "menu"}, {L"#32770", "dialog"}};
/// None of them stands in any text.
constexpr char end_of_field = '\x1f';
constexpr char end_of_record = '\x1e';
constexpr char end_of_answer = '\x1d';
constexpr UINT patience_ms = 5000;

std::string text_of(HWND window)
{
    wchar_t text[1024] = {};
    DWORD_PTR length = 0;
    // A program that is busy answers later.
    SendMessageTimeoutW(window, WM_GETTEXT, std::size(text), reinterpret_cast<LPARAM>(text),
                        SMTO_BLOCK, patience_ms, &length);
    return narrow(text);
}

void print(const auto&... fields)
{
    ((std::cout << fields << end_of_field), ...) << end_of_record;
}

BOOL CALLBACK print_control(HWND window, LPARAM)
{
    RECT place{};
    GetWindowRect(window, &place);
    print(GetDlgCtrlID(window), IsWindowVisible(window), IsWindowEnabled(window), place.left,
          place.top, place.right - place.left, place.bottom - place.top, text_of(window));
    return TRUE;
}

int opacity_of(HWND window)
{
    BYTE alpha = 255;
    DWORD flags = 0;
    if (GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_LAYERED)
        GetLayeredWindowAttributes(window, nullptr, &alpha, &flags);
    return alpha;
}

BOOL CALLBACK print_window(HWND window, LPARAM)
{
    wchar_t own_class[64] = {};
    GetClassNameW(window, own_class, static_cast<int>(std::size(own_class)));
    const auto* kind = std::ranges::find(kinds, own_class, &Kind::window_class);
    if (kind == std::end(kinds) || !IsWindowVisible(window))
        return TRUE;
    RECT client{};
    GetClientRect(window, &client);
    POINT corner{};
    ClientToScreen(window, &corner);
    print(kind->name, opacity_of(window), IsWindowEnabled(window), corner.x, corner.y, client.right,
          client.bottom, text_of(window));
    EnumChildWindows(window, print_control, 0);
    return TRUE;
}

} // namespace

int main()
{
    for (std::string line; std::getline(std::cin, line);) {
        EnumWindows(print_window, 0);
        std::cout << end_of_answer << std::flush;
    }
}
