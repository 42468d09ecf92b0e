#include "console/linux/Record.h"

#include "console/ConsoleProgram.h"
#include "console/linux/LinuxHost.h"
#include "figures/Platform.h"
#include "frame/MainForm.h"
#include "platform/linux/LinuxManagementService.h"
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

/// All that the classes have, also what only another page or tick selects. The accounts that are
/// shown, the user's own first.
std::vector<std::string> ask_classes(ManagementService& service, const std::string& own_account)
{
    for (const ClassSchema& schema : class_schemas())
        service.ExecQuery("Select * from " + std::string(schema.name));
    std::vector<std::string> accounts{own_account};
    for (const Instance& account : service.ExecQuery("Select Name from Win32_UserAccount"))
        accounts.push_back(account["Name"].text());
    return accounts;
}

/// All that the program can ask: the pages and the report as they do, and the classes.
std::vector<std::string> ask_everything(const Options& options, const Sysroot& files)
{
    const auto machine = machine_with(files, options);
    ConsoleProgram program(*machine, options.language);
    for (int section = 1; section <= section_count; ++section)
        program.page(section);
    program.report("text");
    // The clock of a running machine is no file, but that of its recording is one.
    files.read("/proc/uptime");
    const std::string own_account = platform.system_api->Environ("UserName");
    files.report_answer("env", "UserName=" + own_account, "");
    return ask_classes(*machine->management_service(), own_account);
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
    const Sysroot files = Sysroot(options.sysroot.value_or("/")).at_one_moment();
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

KnownIdentities identities_of(const Sysroot& files, const std::string& own_account)
{
    const auto recorder = std::make_shared<Recorder>(files);
    const auto service =
        make_linux_management_service(Sysroot(files, recorder), SessionFactsSource());
    return identities_in(recorder->recording(), ask_classes(*service, own_account));
}

} // namespace ostrelum::console
