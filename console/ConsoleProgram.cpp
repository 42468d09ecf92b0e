#include "console/ConsoleProgram.h"

#include "figures/Shared.h"
#include "frame/Lifecycle.h"
#include "frame/MainForm.h"
#include "frame/Navigation.h"
#include "frame/SettingRows.h"
#include "report/Report.h"

#include <utility>

namespace ostrelum::console {

using namespace memory_platform;

std::string with_lf(std::string text)
{
    std::erase(text, '\r');
    return text;
}

ConsoleProgram::ConsoleProgram(HostedMachine& machine, const std::string& language)
{
    store_.values[full_name(language_setting)] = language;
    platform = machine.services();
    platform.toolkit = &toolkit_;
    platform.clipboard = &clipboard_;
    platform.save_dialog = &save_dialog_;
    platform.browser = &browser_;
    platform.get_object = [&](const std::string&) { return machine.management_service(); };
    platform.create_object = [&](const std::string&) {
        return machine.shell_over(std::make_unique<MemoryShell>(store_));
    };
    load_without_page();
}

ConsoleProgram::~ConsoleProgram()
{
    reset_shared_state();
    platform = {};
}

/// Opens a page as the first one. False if it leaves a row as the page before did, which is then
/// seen on it.
bool ConsoleProgram::open_alone(int section)
{
    const std::string left("\x7F");
    for (int row = 1; row <= F1.LT.count; ++row)
        F1.LT(row).Caption = F1.L(row).Caption = left;
    LMenu_MouseDown(section, left_button, 0, 0, 0);
    for (int row = 1; row <= F1.LT.count; ++row) {
        if (F1.LT(row).Caption == left || F1.L(row).Caption == left)
            return false;
    }
    return true;
}

std::string ConsoleProgram::page(int section)
{
    bool is_open = false;
    if (std::exchange(is_fresh_, false)) {
        is_open = open_alone(section);
        if (!is_open)
            load_program();
    }
    if (!is_open)
        LMenu_MouseDown(section, left_button, 0, 0, 0);
    F1.raise("CopyAll", {.kind = EventKind::Click});
    return with_lf(clipboard_.text.value_or(""));
}

const std::string& ConsoleProgram::report(std::string_view format)
{
    make_report();
    for (const ReportDocument& document : made_documents()) {
        if (document.format == format)
            return *document.text;
    }
    throw Failure("no such format: " + std::string(format));
}

void ConsoleProgram::save(const std::string& path, const std::string& document)
{
    platform.file_writer->replace(path, ansi_file(document));
}

} // namespace ostrelum::console
