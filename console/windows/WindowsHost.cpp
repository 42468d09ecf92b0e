#include "console/windows/WindowsHost.h"

#include "platform/masking/MaskedService.h"
#include "platform/masking/MaskedShell.h"
#include "platform/windows/WindowsSystem.h"
#include "platform/windows/services/Shell.h"
#include "platform/windows/services/WmiService.h"

#include <utility>

namespace ostrelum::console {

using namespace windows_platform;

namespace {

std::string user_of(const Options& options)
{
    return options.user.value_or(own_account());
}

/// Settings are kept elsewhere; all the rest is the system's own.
class ShellOver : public Shell {
public:
    ShellOver(std::unique_ptr<Shell> system, std::unique_ptr<Shell> stored)
        : system_(std::move(system)), stored_(std::move(stored))
    {
    }

    RegValue RegRead(const std::string& name) override
    {
        try {
            return stored_->RegRead(name);
        } catch (const Failure&) {
            return system_->RegRead(name);
        }
    }
    void RegWrite(const std::string& name, const RegValue& value, const std::string& type) override
    {
        stored_->RegWrite(name, value, type);
    }
    std::string SpecialFolders(const std::string& name) override
    {
        return system_->SpecialFolders(name);
    }

private:
    std::unique_ptr<Shell> system_;
    std::unique_ptr<Shell> stored_;
};

class WindowsHostedMachine : public HostedMachine {
public:
    explicit WindowsHostedMachine(const Options& options)
        : options_(options), system_(options.mask ? std::string(hidden_text) : user_of(options))
    {
    }

    Platform services() override
    {
        return {.registry = &system_.registry,
                .file_writer = &system_.file_writer,
                .clock = &system_.clock,
                .regional = &system_.regional,
                .system_api = &system_.system_api,
                .ansi_code_page = &system_.ansi_code_page};
    }

    std::unique_ptr<ManagementService> management_service() override
    {
        auto service = make_wmi_service("WINMGMTS:\\\\.\\root\\cimv2");
        if (!options_.mask)
            return service;
        return std::make_unique<MaskedService>(std::move(service), user_of(options_));
    }

    std::unique_ptr<Shell> shell_over(std::unique_ptr<Shell> stored) override
    {
        auto shell = std::make_unique<ShellOver>(make_shell("WScript.Shell"), std::move(stored));
        if (!options_.mask)
            return shell;
        return std::make_unique<MaskedShell>(std::move(shell), KnownIdentities());
    }

private:
    Options options_;
    WindowsSystem system_;
};

} // namespace

std::unique_ptr<HostedMachine> WindowsHost::open(const Options& options)
{
    return std::make_unique<WindowsHostedMachine>(options);
}

void WindowsHost::record(const Options&, const std::string&)
{
    throw Failure("machines cannot be recorded on this system");
}

} // namespace ostrelum::console
