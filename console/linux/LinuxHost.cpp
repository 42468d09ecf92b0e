#include "console/linux/LinuxHost.h"

#include "console/linux/Record.h"
#include "platform/linux/LinuxManagementService.h"
#include "platform/linux/LinuxSystem.h"
#include "platform/linux/recording/RecordedSystemCalls.h"
#include "platform/linux/services/MachineShell.h"
#include "platform/masking/MaskedService.h"
#include "platform/masking/MaskedShell.h"

#include <optional>

namespace ostrelum::console {

using namespace linux_platform;

namespace {

constexpr const char* user_name = "UserName";

/// A recording tells whose pages it was made of; one that does not is nobody's. Nothing: the user
/// of this process's.
std::optional<std::string> user_of(const Options& options, const Sysroot& files)
{
    if (options.user || files.is_live())
        return options.user;
    return recorded_system_calls(Sysroot(files, nullptr))->variable(user_name).value_or("");
}

/// The user that the program sees.
std::optional<std::string> shown_user(const Options& options, const Sysroot& files)
{
    return options.mask ? std::string(hidden_text) : user_of(options, files);
}

class LinuxHostedMachine : public HostedMachine {
public:
    LinuxHostedMachine(const Sysroot& files, const Options& options)
        : files_(files), options_(options)
    {
    }

    /// Made when they are first asked for: a query needs none of them.
    Platform services() override
    {
        if (!system_)
            system_.emplace(files_, process_environment(), shown_user(options_, files_));
        return {.registry = &system_->registry,
                .file_writer = &system_->file_writer,
                .clock = &system_->clock,
                .regional = &system_->regional,
                .system_api = &system_->system_api,
                .ansi_code_page = &system_->ansi_code_page};
    }

    std::unique_ptr<ManagementService> management_service() override
    {
        auto service = make_linux_management_service(files_, SessionFactsSource());
        if (!options_.mask)
            return service;
        return std::make_unique<MaskedService>(std::move(service), own_account(), known());
    }

    std::unique_ptr<Shell> shell_over(std::unique_ptr<Shell> stored) override
    {
        auto shell = std::make_unique<MachineShell>(files_, std::move(stored));
        if (!options_.mask)
            return shell;
        return std::make_unique<MaskedShell>(std::move(shell), known());
    }

private:
    std::string own_account() const
    {
        LinuxSystemApi open(files_, process_environment(), user_of(options_, files_));
        return open.Environ(user_name);
    }

    /// Asks the machine for much: once.
    const KnownIdentities& known()
    {
        if (!known_)
            known_ = identities_of(files_, own_account());
        return *known_;
    }

    Sysroot files_;
    Options options_;
    std::optional<LinuxSystem> system_;
    std::optional<KnownIdentities> known_;
};

} // namespace

std::unique_ptr<HostedMachine> machine_with(const Sysroot& files, const Options& options)
{
    return std::make_unique<LinuxHostedMachine>(files, options);
}

std::unique_ptr<HostedMachine> LinuxHost::open(const Options& options)
{
    // Nothing shows a figure twice, so none can be seen to change.
    return machine_with(Sysroot(options.sysroot.value_or("/")).at_one_moment(), options);
}

void LinuxHost::record(const Options& options, const std::string& folder)
{
    record_machine(options, folder);
}

} // namespace ostrelum::console
