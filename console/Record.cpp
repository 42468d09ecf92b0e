#include "console/Record.h"

#include "console/Machine.h"
#include "frame/MainForm.h"
#include "platform/linux/recording/MaskedRecording.h"
#include "platform/linux/recording/Recorder.h"
#include "sources/Schema.h"

#include <memory>
#include <string>
#include <vector>

namespace ostrelum::console {
namespace {

/// All that the program can ask: the pages and the report as they do, and of each class also the
/// properties that only another page or tick selects. The accounts that are shown, the user's own
/// first.
std::vector<std::string> ask_everything(const Options& options, const Sysroot& files)
{
    ConsoleMachine machine(options, files);
    for (int section = 1; section <= section_count; ++section)
        machine.page(section);
    machine.report("text");
    const auto service = service_of(options, files);
    for (const ClassSchema& schema : class_schemas())
        service->ExecQuery("Select * from " + std::string(schema.name));
    // The clock of a running machine is no file, but that of its recording is one.
    files.read("/proc/uptime");
    std::vector<std::string> accounts{machine.user()};
    files.report_answer("env", "UserName=" + accounts.front(), "");
    for (const Instance& account : service->ExecQuery("Select Name from Win32_UserAccount"))
        accounts.push_back(account["Name"].text());
    return accounts;
}

} // namespace

void record_machine(const Options& options, const std::string& folder)
{
    check_unused(folder);
    const Sysroot files(options.sysroot);
    const auto recorder = std::make_shared<Recorder>(files);
    // What is hidden is so in the recording: the machine itself is asked as it is.
    Options open = options;
    open.mask = false;
    const auto accounts = ask_everything(open, Sysroot(files, recorder));
    const Recording& recording = recorder->recording();
    write_recording(options.mask ? masked_recording(recording, accounts) : recording, folder);
}

} // namespace ostrelum::console
