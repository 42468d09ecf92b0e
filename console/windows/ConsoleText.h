#pragma once

#include <iostream>
#include <streambuf>
#include <string>

#include <windows.h>

namespace ostrelum::console {

/// Text on its way to a console window, which takes UTF-16 and shows it right whatever its code
/// page is.
class ConsoleText : public std::streambuf {
public:
    explicit ConsoleText(HANDLE console) : console_(console) {}

protected:
    int_type overflow(int_type character) override;
    std::streamsize xsputn(const char* text, std::streamsize size) override;
    int sync() override;

private:
    HANDLE console_;
    /// Not yet shown.
    std::string text_;
};

/// As long as it lives, what the program writes has the letters of a console window, and LF as it
/// stands on a pipe or in a file.
class StandardStreams {
public:
    StandardStreams();
    StandardStreams(const StandardStreams&) = delete;
    StandardStreams& operator=(const StandardStreams&) = delete;
    ~StandardStreams();

private:
    ConsoleText output_;
    ConsoleText errors_;
    std::streambuf* const usual_output_;
    std::streambuf* const usual_errors_;
};

} // namespace ostrelum::console
