#pragma once

#include "platform/linux/services/Environment.h"
#include "platform/linux/services/SettingsStore.h"
#include "platform/system/Shell.h"

#include <string>

namespace ostrelum::linux_platform {

/// The shell object on Linux. Values lie in the file "dervalin-ostrelum/settings" of the user's
/// configuration folder, XDG_CONFIG_HOME or ~/.config.
class LinuxShell : public Shell {
public:
    explicit LinuxShell(Environment environment);

    RegValue RegRead(const std::string& name) override;

    /// A number is stored as text under "REG_SZ", and digits as a number under "REG_DWORD".
    void RegWrite(const std::string& name, const RegValue& value, const std::string& type) override;

    /// "Fonts" is the folder that holds segoeui.ttf, so that a test for the file finds it wherever
    /// the user put it; else the user's own font folder, whether it exists or not. "Desktop" is the
    /// folder of user-dirs.dirs, else ~/Desktop, else the home folder.
    std::string SpecialFolders(const std::string& name) override;

private:
    Environment environment_;
    SettingsStore store_;
};

} // namespace ostrelum::linux_platform
