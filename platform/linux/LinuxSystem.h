#pragma once

#include "platform/linux/services/AnsiCodePage.h"
#include "platform/linux/services/Clock.h"
#include "platform/linux/services/Environment.h"
#include "platform/linux/services/FileWriter.h"
#include "platform/linux/services/Regional.h"
#include "platform/linux/services/Registry.h"
#include "platform/linux/services/Shell.h"
#include "platform/linux/services/SystemApi.h"
#include "platform/system/Failure.h"
#include "sources/Ascii.h"

#include <memory>
#include <optional>
#include <string>

namespace ostrelum::linux_platform {

/// The services that need no window, on Linux. What concerns the machine is read under `root`,
/// "/" or the folder of a recorded machine; the user's own folders and settings are always real.
/// `user` is whose pages are shown; nothing: the user of this process.
struct LinuxSystem {
    explicit LinuxSystem(const std::string& root = "/",
                         const Environment& variables = process_environment(),
                         const std::optional<std::string>& user = std::nullopt)
        : environment(variables), clock(root), regional(variables),
          system_api(root, variables, user)
    {
    }
    LinuxSystem(const Sysroot& root, const Environment& variables,
                const std::optional<std::string>& user)
        : environment(variables), clock(root), regional(variables),
          system_api(root, variables, user)
    {
    }

    /// A new object of the class "WScript.Shell". Throws Failure for any other class.
    std::unique_ptr<Shell> create_object(const std::string& class_name) const
    {
        if (!same_ascii_letters(class_name, "WScript.Shell"))
            throw Failure("no such class: " + class_name);
        return std::make_unique<LinuxShell>(environment);
    }

    Environment environment;
    LinuxClock clock;
    LinuxRegional regional;
    LinuxSystemApi system_api;
    LinuxRegistry registry;
    LinuxFileWriter file_writer;
    LinuxAnsiCodePage ansi_code_page;
};

} // namespace ostrelum::linux_platform
