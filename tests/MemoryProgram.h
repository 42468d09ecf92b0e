#pragma once

#include "figures/Platform.h"
#include "figures/Shared.h"
#include "frame/SettingRows.h"
#include "platform/memory/MemorySystem.h"
#include "platform/memory/MemoryToolkit.h"
#include "platform/memory/ScriptedService.h"

#include <memory>
#include <string>

namespace ostrelum {

using namespace memory_platform;

/// The memory back end under the whole program, which is not started yet.
class MemoryProgram {
public:
    MemoryProgram()
    {
        platform = {.toolkit = &toolkit,
                    .registry = &registry,
                    .clipboard = &clipboard,
                    .save_dialog = &save_dialog,
                    .file_writer = &file_writer,
                    .browser = &browser,
                    .clock = &clock,
                    .regional = &regional,
                    .system_api = &system_api,
                    .ansi_code_page = &ansi_code_page,
                    .get_object = [this](const std::string& moniker) { return bind(moniker); },
                    .create_object = [this](const std::string& name) { return create(name); }};
    }
    MemoryProgram(const MemoryProgram&) = delete;
    MemoryProgram& operator=(const MemoryProgram&) = delete;
    ~MemoryProgram()
    {
        reset_shared_state();
        platform = {};
    }

    void store_number(std::string_view name, std::uint32_t number)
    {
        store.values[full_name(name)] = number;
    }
    void store_text(std::string_view name, const std::string& text)
    {
        store.values[full_name(name)] = text;
    }
    /// A stored setting as text; "" for none.
    std::string stored(std::string_view name) const
    {
        const auto value = store.values.find(full_name(name));
        if (value == store.values.end())
            return "";
        if (const auto* number = std::get_if<std::uint32_t>(&value->second))
            return std::to_string(*number);
        return std::get<std::string>(value->second);
    }

    MemoryToolkit toolkit;
    MemoryRegistry registry;
    MemoryClipboard clipboard;
    MemorySaveDialog save_dialog;
    MemoryFileWriter file_writer;
    MemoryBrowser browser;
    MemoryAnsiCodePage ansi_code_page;
    MemoryClock clock;
    MemoryRegional regional;
    MemorySystemApi system_api;
    MemoryStore store;
    ServiceScript script;
    bool service_gone = false;
    bool shell_gone = false;

private:
    std::unique_ptr<ManagementService> bind(const std::string& moniker)
    {
        if (service_gone || moniker != "WINMGMTS:\\\\.\\root\\cimv2")
            throw Failure("no management service");
        return std::make_unique<ScriptedService>(script);
    }
    std::unique_ptr<Shell> create(const std::string& class_name)
    {
        if (shell_gone || class_name != "WScript.Shell")
            throw Failure("no shell object");
        return std::make_unique<MemoryShell>(store);
    }
};

} // namespace ostrelum
