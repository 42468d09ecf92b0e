#pragma once

#include "platform/linux/files/Sysroot.h"
#include "platform/system/Shell.h"

#include <memory>
#include <string>

namespace ostrelum::linux_platform {

/// A shell object that also knows the main board's full name, which other systems keep among the
/// stored values: "HKEY_CURRENT_USER\Software\Install\Ostrelum\Mainboard\Full" is the board's maker
/// and name as the firmware of the machine gives them. That value cannot be written. All else is
/// the other object's.
class MachineShell : public Shell {
public:
    /// `root` is "/" or the folder of a recorded machine. Throws Failure if it is no folder.
    MachineShell(const std::string& root, std::unique_ptr<Shell> stored);
    MachineShell(Sysroot root, std::unique_ptr<Shell> stored);

    RegValue RegRead(const std::string& name) override;
    void RegWrite(const std::string& name, const RegValue& value, const std::string& type) override;
    std::string SpecialFolders(const std::string& name) override;

private:
    Sysroot root_;
    std::unique_ptr<Shell> stored_;
};

} // namespace ostrelum::linux_platform
