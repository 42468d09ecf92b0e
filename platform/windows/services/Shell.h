#pragma once

#include "platform/system/Shell.h"
#include "platform/windows/services/Com.h"

#include <memory>

namespace ostrelum::windows_platform {

/// The system's own object of the class "WScript.Shell", asked through its dispatch interface.
class WindowsShell : public Shell {
public:
    explicit WindowsShell(ComPtr<IDispatch> shell) : shell_(std::move(shell)) {}

    /// The name of the main board is what the firmware says, where nobody has written another one.
    /// Throws Failure also for a value of another type than text and 32-bit number.
    RegValue RegRead(const std::string& name) override;
    void RegWrite(const std::string& name, const RegValue& value, const std::string& type) override;

    /// Where the object itself does not know a folder, the system's list of known folders does.
    std::string SpecialFolders(const std::string& name) override;

private:
    ComPtr<IDispatch> shell_;
};

/// A new object of a class such as "WScript.Shell". Throws Failure if it cannot be created.
std::unique_ptr<Shell> make_shell(const std::string& class_name);

} // namespace ostrelum::windows_platform
