#pragma once

#include "platform/windows/services/WmiThread.h"
#include "sources/ManagementService.h"

#include <chrono>
#include <map>
#include <memory>
#include <string>

namespace ostrelum::windows_platform {

/// The management service of the system.
class WmiService : public ManagementService {
public:
    /// How long a question may take.
    static constexpr std::chrono::milliseconds usual_patience = std::chrono::seconds(30);

    /// Throws Failure if the service cannot be connected.
    explicit WmiService(WmiConnect connect, std::chrono::milliseconds patience = usual_patience);

    /// Throws Failure also for a query that is not answered in time; asked again while its first
    /// answer is still out, it fails at once, so that a page with a dead class does not wait at
    /// each look.
    ResultSet ExecQuery(std::string_view wql) override;

private:
    ResultSet ask(const std::optional<std::string>& wql);

    WmiConnect connect_;
    std::chrono::milliseconds patience_;
    std::unique_ptr<WmiThread> thread_;
    /// Queries that were not answered in time, and whether they have been since.
    std::map<std::string, std::function<bool()>> out_;
};

/// The service behind a moniker such as "WINMGMTS:\\.\root\cimv2". Throws Failure for another kind
/// of moniker, and if the service cannot be connected.
std::unique_ptr<ManagementService> make_wmi_service(const std::string& moniker);

} // namespace ostrelum::windows_platform
