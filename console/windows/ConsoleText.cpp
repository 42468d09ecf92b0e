#include "console/windows/ConsoleText.h"

#include "platform/windows/services/Wide.h"

#include <algorithm>
#include <string_view>

#include <fcntl.h>
#include <io.h>

namespace ostrelum::console {
namespace {

/// A console takes some 32,000 characters at once, and older ones less.
constexpr std::size_t slice = 8000;

bool is_console(HANDLE handle)
{
    DWORD mode = 0;
    return GetConsoleMode(handle, &mode) != 0;
}

/// As long as nothing cuts a surrogate pair.
std::size_t slice_of(std::wstring_view text)
{
    const std::size_t size = std::min(slice, text.size());
    const bool cuts = size < text.size() && text[size] >= 0xDC00 && text[size] < 0xE000;
    return cuts ? size - 1 : size;
}

bool show(HANDLE console, std::wstring_view text)
{
    while (!text.empty()) {
        DWORD written = 0;
        const auto size = static_cast<DWORD>(slice_of(text));
        if (!WriteConsoleW(console, text.data(), size, &written, nullptr) || written == 0)
            return false;
        text.remove_prefix(written);
    }
    return true;
}

} // namespace

ConsoleText::int_type ConsoleText::overflow(int_type character)
{
    if (traits_type::eq_int_type(character, traits_type::eof()))
        return traits_type::not_eof(character);
    text_ += traits_type::to_char_type(character);
    return character;
}

std::streamsize ConsoleText::xsputn(const char* text, std::streamsize size)
{
    text_.append(text, static_cast<std::size_t>(size));
    return size;
}

int ConsoleText::sync()
{
    const bool shown = show(console_, windows_platform::wide(text_));
    text_.clear();
    return shown ? 0 : -1;
}

StandardStreams::StandardStreams()
    : output_(GetStdHandle(STD_OUTPUT_HANDLE)), errors_(GetStdHandle(STD_ERROR_HANDLE)),
      usual_output_(std::cout.rdbuf()), usual_errors_(std::cerr.rdbuf())
{
    if (is_console(GetStdHandle(STD_OUTPUT_HANDLE)))
        std::cout.rdbuf(&output_);
    else
        _setmode(_fileno(stdout), _O_BINARY);
    if (is_console(GetStdHandle(STD_ERROR_HANDLE)))
        std::cerr.rdbuf(&errors_);
    else
        _setmode(_fileno(stderr), _O_BINARY);
}

StandardStreams::~StandardStreams()
{
    std::cout.flush();
    std::cerr.flush();
    std::cout.rdbuf(usual_output_);
    std::cerr.rdbuf(usual_errors_);
}

} // namespace ostrelum::console
