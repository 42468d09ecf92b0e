#pragma once

#include "console/Host.h"
#include "platform/memory/MemorySystem.h"
#include "platform/memory/MemoryToolkit.h"

#include <string>
#include <string_view>

namespace ostrelum::console {

/// A text with the line ends of a terminal.
std::string with_lf(std::string text);

/// The program on a terminal: the collectors run as in the window, on the memory toolkit, and
/// answer from one machine. One can be at a time.
class ConsoleProgram {
public:
    /// Starts the program on a machine, which must outlive it. `language` is the name of one.
    ConsoleProgram(HostedMachine& machine, const std::string& language);
    ConsoleProgram(const ConsoleProgram&) = delete;
    ConsoleProgram& operator=(const ConsoleProgram&) = delete;
    ~ConsoleProgram();

    /// What Copy all takes from a section's page, 1 to 13, with LF line ends.
    std::string page(int section);

    /// Makes the report; a document of it by its format as report/Report.h names them, UTF-8 with
    /// CRLF line ends.
    const std::string& report(std::string_view format);

    /// Writes a file as saving does. Throws Failure if it cannot be written; an earlier file is
    /// then as it was.
    void save(const std::string& path, const std::string& document);

private:
    bool open_alone(int section);

    /// No page has been open.
    bool is_fresh_ = true;
    memory_platform::MemoryToolkit toolkit_;
    memory_platform::MemoryClipboard clipboard_;
    memory_platform::MemorySaveDialog save_dialog_;
    memory_platform::MemoryBrowser browser_;
    memory_platform::MemoryStore store_;
};

} // namespace ostrelum::console
