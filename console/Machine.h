#pragma once

#include "console/Options.h"
#include "platform/linux/LinuxSystem.h"
#include "platform/memory/MemorySystem.h"
#include "platform/memory/MemoryToolkit.h"
#include "sources/ManagementService.h"

#include <memory>
#include <string>
#include <string_view>

namespace ostrelum::console {

using namespace linux_platform;
using namespace memory_platform;

/// A text with the line ends of a terminal.
std::string with_lf(std::string text);

/// The management service of the machine with these files; with pseudonyms for what identifies, if
/// the options say so.
std::unique_ptr<ManagementService> service_of(const Options& options, const Sysroot& files);

/// The program on a terminal: the collectors run as in the window, on the memory toolkit, and
/// answer from one machine. One can be at a time.
class ConsoleMachine {
public:
    /// Starts the program on the machine. Throws Failure if the machine's folder is not there.
    explicit ConsoleMachine(const Options& options);
    /// The same on the machine with these files, whatever folder the options name.
    ConsoleMachine(const Options& options, const Sysroot& files);
    ConsoleMachine(const ConsoleMachine&) = delete;
    ConsoleMachine& operator=(const ConsoleMachine&) = delete;
    ~ConsoleMachine();

    /// The account of the user page.
    std::string user();

    /// What Copy all takes from a section's page, 1 to 13, with LF line ends.
    std::string page(int section);

    /// Makes the report; a document of it by its format as report/Report.h names them, UTF-8 with
    /// CRLF line ends.
    const std::string& report(std::string_view format);

    /// Writes a file as saving does. Throws Failure if it cannot be written; an earlier file is
    /// then as it was.
    void save(const std::string& path, const std::string& document);

private:
    MemoryToolkit toolkit_;
    MemoryClipboard clipboard_;
    MemorySaveDialog save_dialog_;
    MemoryBrowser browser_;
    MemoryStore store_;
    LinuxSystem system_;
};

} // namespace ostrelum::console
