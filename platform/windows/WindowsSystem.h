#pragma once

#include "platform/windows/services/AnsiCodePage.h"
#include "platform/windows/services/Browser.h"
#include "platform/windows/services/Clock.h"
#include "platform/windows/services/Com.h"
#include "platform/windows/services/FileWriter.h"
#include "platform/windows/services/Regional.h"
#include "platform/windows/services/Registry.h"
#include "platform/windows/services/SystemApi.h"

namespace ostrelum::windows_platform {

/// COM on the program's first thread, on which windows, dialogs and the shell object live.
class ComProcess {
public:
    ComProcess();

private:
    Apartment apartment_;
};

/// The services that need no window, on Windows. To be made once, on the program's first thread.
struct WindowsSystem {
    explicit WindowsSystem(std::optional<std::string> user = std::nullopt)
        : system_api(std::move(user))
    {
    }

    ComProcess com;
    WindowsClock clock;
    WindowsRegional regional;
    WindowsSystemApi system_api;
    WindowsRegistry registry;
    WindowsFileWriter file_writer;
    WindowsAnsiCodePage ansi_code_page;
    WindowsBrowser browser;
};

} // namespace ostrelum::windows_platform
