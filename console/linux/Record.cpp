#include "console/linux/Record.h"

#include "console/ConsoleProgram.h"
#include "console/linux/LinuxHost.h"
#include "figures/Platform.h"
#include "frame/MainForm.h"
#include "platform/linux/recording/MaskedRecording.h"
#include "platform/linux/recording/Recorder.h"
#include "platform/system/Failure.h"
#include "sources/Schema.h"

#include <memory>
#include <string>
#include <system_error>
#include <vector>

namespace ostrelum::console {

using namespace linux_platform;

namespace {

/// All that the program can ask: the pages and the report as they do, and of each class also the
/// properties that only another page or tick selects. The accounts that are shown, the user's own
/// first.
std::vector<std::string> ask_everything(const Options& options, const Sysroot& files)
{
    const auto machine = machine_with(files, options);
    ConsoleProgram program(*machine, options.language);
    for (int section = 1; section <= section_count; ++section)
        program.page(section);
    program.report("text");
    const auto service = machine->management_service();
    for (const ClassSchema& schema : class_schemas())
        service->ExecQuery("Select * from " + std::string(schema.name));
    // The clock of a running machine is no file, but that of its recording is one.
    files.read("/proc/uptime");
    std::vector<std::string> accounts{platform.system_api->Environ("UserName")};
    files.report_answer("env", "UserName=" + accounts.front(), "");
    for (const Instance& account : service->ExecQuery("Select Name from Win32_UserAccount"))
        accounts.push_back(account["Name"].text());
    return accounts;
}

/// Libraries pass over what they cannot open, so there must be room for them beforehand. Throws
/// Failure if this process may not have so many files open.
void check_room(const std::string& root)
{
    constexpr std::size_t most_at_once = 32;
    std::vector<Sysroot> opened;
    while (opened.size() < most_at_once)
        opened.emplace_back(root);
}

} // namespace

void record_machine(const Options& options, const std::string& folder)
{
    check_unused(folder);
    check_room(options.sysroot.value_or("/"));
    const Sysroot files(options.sysroot.value_or("/"));
    const auto recorder = std::make_shared<Recorder>(files);
    // What is hidden is so in the recording: the machine itself is asked as it is.
    Options open = options;
    open.mask = false;
    const auto accounts = ask_everything(open, Sysroot(files, recorder));
    if (const int error = files.shortage())
        throw Failure(folder + ": " + std::generic_category().message(error));
    const Recording& recording = recorder->recording();
    write_recording(options.mask ? masked_recording(recording, accounts) : recording, folder);
}

} // namespace ostrelum::console
