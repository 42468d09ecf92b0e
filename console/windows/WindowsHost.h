#pragma once

#include "console/Host.h"

namespace ostrelum::console {

/// The console's host on Windows: this machine alone.
class WindowsHost : public Host {
public:
    std::unique_ptr<HostedMachine> open(const Options& options) override;
    bool knows_recordings() const override { return false; }
    void record(const Options& options, const std::string& folder) override;
};

} // namespace ostrelum::console
