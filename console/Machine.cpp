#include "console/Machine.h"

#include "figures/Platform.h"
#include "figures/Shared.h"
#include "frame/Lifecycle.h"
#include "frame/MainForm.h"
#include "frame/Navigation.h"
#include "frame/SettingRows.h"
#include "platform/linux/LinuxManagementService.h"
#include "platform/linux/recording/RecordedSystemCalls.h"
#include "platform/linux/services/MachineShell.h"
#include "platform/masking/MaskedService.h"
#include "report/Report.h"

namespace ostrelum::console {
namespace {

constexpr const char* UserName = "UserName";

/// A recording tells whose pages it was made of.
std::optional<std::string> user_of(const Options& options, const Sysroot& files)
{
    if (options.user || files.is_live())
        return options.user;
    return recorded_system_calls(Sysroot(files, nullptr))->variable(UserName);
}

Environment environment_of(const Options& options, const Sysroot& files)
{
    Environment environment = process_environment();
    if (const auto user = user_of(options, files))
        environment[UserName] = *user;
    return environment;
}

/// As the program is told of it.
Environment shown_environment(const Options& options, const Sysroot& files)
{
    Environment environment = environment_of(options, files);
    if (options.mask)
        environment[UserName] = hidden_text;
    return environment;
}

} // namespace

std::string with_lf(std::string text)
{
    std::erase(text, '\r');
    return text;
}

std::unique_ptr<ManagementService> service_of(const Options& options, const Sysroot& files)
{
    auto service = make_linux_management_service(files, SessionFactsSource());
    if (!options.mask)
        return service;
    LinuxSystemApi system_api(files, environment_of(options, files));
    return std::make_unique<MaskedService>(std::move(service), system_api.Environ(UserName));
}

ConsoleMachine::ConsoleMachine(const Options& options)
    : ConsoleMachine(options, Sysroot(options.sysroot))
{
}

ConsoleMachine::ConsoleMachine(const Options& options, const Sysroot& files)
    : system_(files, shown_environment(options, files))
{
    store_.values[full_name(language_setting)] = options.language;
    platform = {.toolkit = &toolkit_,
                .registry = &system_.registry,
                .clipboard = &clipboard_,
                .save_dialog = &save_dialog_,
                .file_writer = &system_.file_writer,
                .browser = &browser_,
                .clock = &system_.clock,
                .regional = &system_.regional,
                .system_api = &system_.system_api,
                .get_object = [=](const std::string&) { return service_of(options, files); },
                .create_object =
                    [this, files](const std::string&) {
                        return std::make_unique<MachineShell>(
                            files, std::make_unique<MemoryShell>(store_));
                    }};
    load_program();
}

ConsoleMachine::~ConsoleMachine()
{
    reset_shared_state();
    platform = {};
}

std::string ConsoleMachine::user()
{
    return system_.system_api.Environ(UserName);
}

std::string ConsoleMachine::page(int section)
{
    LMenu_MouseDown(section, LeftButton, 0, 0, 0);
    F1.raise("CopyAll", {.kind = EventKind::Click});
    return with_lf(clipboard_.text.value_or(""));
}

const std::string& ConsoleMachine::report(std::string_view format)
{
    make_report();
    for (const ReportDocument& document : made_documents()) {
        if (document.format == format)
            return *document.text;
    }
    throw Failure("no such format: " + std::string(format));
}

void ConsoleMachine::save(const std::string& path, const std::string& document)
{
    platform.file_writer->replace(path, ansi_file(document));
}

} // namespace ostrelum::console
