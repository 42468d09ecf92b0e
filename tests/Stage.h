#pragma once

#include "frame/Life.h"
#include "frame/MainForm.h"
#include "frame/Navigation.h"
#include "frame/PictureForm.h"
#include "frame/Platform.h"
#include "frame/SettingRows.h"
#include "frame/Shared.h"
#include "platform/memory/MemorySystem.h"
#include "platform/memory/MemoryToolkit.h"
#include "platform/memory/ScriptedService.h"

#include <gtest/gtest.h>

#include <string>

namespace ostrelum {

/// The whole program on the memory back end, not started yet.
class Stage : public ::testing::Test {
protected:
    Stage()
    {
        platform = {.toolkit = &toolkit,
                    .registry = &registry,
                    .clipboard = &clipboard,
                    .save_dialog = &save_dialog,
                    .browser = &browser,
                    .clock = &clock,
                    .regional = &regional,
                    .machine = &machine,
                    .GetObject = [this](const std::string& moniker) { return bind(moniker); },
                    .CreateObject = [this](const std::string& name) { return create(name); }};
    }

    ~Stage() override
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

    static void press(std::string_view control, int index = 0, int button = LeftButton, int x = 0,
                      int y = 0)
    {
        F1.raise(control,
                 {.kind = EventKind::MouseDown, .index = index, .button = button, .x = x, .y = y});
    }
    static void click(std::string_view control) { F1.raise(control, {.kind = EventKind::Click}); }
    static void tick(std::string_view timer) { F1.raise(timer, {.kind = EventKind::Timer}); }

    MemoryToolkit toolkit;
    MemoryRegistry registry;
    MemoryClipboard clipboard;
    MemorySaveDialog save_dialog;
    MemoryBrowser browser;
    MemoryClock clock;
    MemoryRegional regional;
    MemoryMachine machine;
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
