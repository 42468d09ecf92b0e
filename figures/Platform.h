#pragma once

#include "platform/system/AnsiCodePage.h"
#include "platform/system/Browser.h"
#include "platform/system/Clipboard.h"
#include "platform/system/Clock.h"
#include "platform/system/FileWriter.h"
#include "platform/system/Regional.h"
#include "platform/system/Registry.h"
#include "platform/system/SaveDialog.h"
#include "platform/system/Shell.h"
#include "platform/system/SystemApi.h"
#include "platform/toolkit/Toolkit.h"
#include "sources/ManagementService.h"

#include <functional>
#include <memory>
#include <string>

namespace ostrelum::inline figures {

/// What the program stands on. The main file fills every field before the first event; the services
/// live as long as the process.
struct Platform {
    Toolkit* toolkit = nullptr;
    Registry* registry = nullptr;
    Clipboard* clipboard = nullptr;
    SaveDialog* save_dialog = nullptr;
    FileWriter* file_writer = nullptr;
    Browser* browser = nullptr;
    Clock* clock = nullptr;
    Regional* regional = nullptr;
    SystemApi* system_api = nullptr;
    AnsiCodePage* ansi_code_page = nullptr;

    /// The object behind a moniker. Throws Failure if it cannot be bound.
    std::function<std::unique_ptr<ManagementService>(const std::string& moniker)> get_object;
    /// A new object of a class. Throws Failure if it cannot be created.
    std::function<std::unique_ptr<Shell>(const std::string& class_name)> create_object;
};

inline Platform platform;

} // namespace ostrelum::inline figures
