#pragma once

#include "console/Host.h"
#include "platform/linux/files/Sysroot.h"

namespace ostrelum::console {

/// The console's host on Linux: this machine, or a recorded one.
class LinuxHost : public Host {
public:
    std::unique_ptr<HostedMachine> open(const Options& options) override;
    bool knows_recordings() const override { return true; }
    void record(const Options& options, const std::string& folder) override;
};

/// The machine with these files, whatever folder the options name.
std::unique_ptr<HostedMachine> machine_with(const linux_platform::Sysroot& files,
                                            const Options& options);

} // namespace ostrelum::console
