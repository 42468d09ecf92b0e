#include "console/Record.h"

#include "console/Machine.h"
#include "platform/linux/LinuxManagementService.h"
#include "platform/linux/Recorder.h"
#include "sources/Schema.h"

#include <memory>

namespace ostrelum {
namespace {

/// All that the program can ask: the pages and the report as they do, and of each class also the
/// properties that only another page or tick selects.
void ask_everything(const Options& options, const Sysroot& files)
{
    ConsoleMachine machine(options, files);
    for (int section = 1; section <= SectionCount; ++section)
        machine.page(section);
    machine.report("text");
    const auto service = make_linux_management_service(files, SessionFactsSource());
    for (const ClassSchema& schema : class_schemas())
        service->ExecQuery("Select * from " + std::string(schema.name));
    files.tell("env", "UserName=" + machine.user(), "");
    // The clock of a running machine is no file, but that of its recording is one.
    files.read("/proc/uptime");
}

} // namespace

void record_machine(const Options& options, const std::string& folder)
{
    check_unused(folder);
    const Sysroot files(options.sysroot);
    const auto recorder = std::make_shared<Recorder>(files);
    ask_everything(options, Sysroot(files, recorder));
    write_machine(recorder->machine(), folder);
}

} // namespace ostrelum
