#pragma once

#include "platform/system/SystemApi.h"
#include "platform/windows/services/SingleInstance.h"

#include <optional>
#include <string>

namespace ostrelum::windows_platform {

/// The name of the account that the process runs as. Empty if the system does not tell.
std::string own_account();

/// SystemApi on Windows.
class WindowsSystemApi : public SystemApi {
public:
    /// `user` is the account whose page is shown, if it is not the process's own.
    explicit WindowsSystemApi(std::optional<std::string> user = std::nullopt);

    /// Counts the processors of all groups, of which each holds 64 at most.
    SystemInfo GetOstrelum() override;
    int GetSystemMetrics(int index) override;

    /// "UserName" is the account, whatever the variable of that name says.
    std::string Environ(const std::string& name) override;

    /// Of the attributes those that a file keeps in its folder's list: read-only 1, hidden 2,
    /// system 4, folder 16, archive 32.
    int GetAttr(const std::string& path) override;

    bool PrevInstance() override { return instance_.held_elsewhere(); }
    void End() override;

private:
    std::string user_;
    SingleInstance instance_;
};

} // namespace ostrelum::windows_platform
