#pragma once

#include "platform/linux/files/Sysroot.h"
#include "platform/linux/services/Environment.h"
#include "platform/linux/services/SingleInstance.h"
#include "platform/system/SystemApi.h"

#include <optional>
#include <string>
#include <string_view>

namespace ostrelum::linux_platform {

/// SystemApi on Linux. What concerns the hardware is read under `root`: "/" or the folder of a
/// recorded machine.
class LinuxSystemApi : public SystemApi {
public:
    /// `user` is whose pages are shown; nothing: the user of this process.
    LinuxSystemApi(const std::string& root, Environment environment,
                   std::optional<std::string> user = std::nullopt);
    /// Nothing in `files`: a machine without any.
    LinuxSystemApi(std::optional<Sysroot> files, Environment environment,
                   std::optional<std::string> user = std::nullopt);

    SystemInfo GetOstrelum() override;
    int GetSystemMetrics(int index) override;

    /// "UserName", which Linux does not know, is the login name: a variable of that name may hold
    /// anything.
    std::string Environ(const std::string& name) override;

    /// 32 for a regular file that this process may read, 16 for a folder, 0 for anything else. The
    /// last part of the path matches in any ASCII case.
    int GetAttr(const std::string& path) override;

    bool PrevInstance() override;
    void End() override;

private:
    std::optional<Sysroot> files_;
    Environment environment_;
    std::optional<std::string> user_;
    SingleInstance instance_;
};

} // namespace ostrelum::linux_platform
