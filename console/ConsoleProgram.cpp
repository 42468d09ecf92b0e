#include "console/ConsoleProgram.h"

#include "figures/Shared.h"
#include "frame/Lifecycle.h"
#include "frame/MainForm.h"
#include "frame/Navigation.h"
#include "frame/SettingRows.h"
#include "report/Report.h"

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
    load_program();
}

ConsoleProgram::~ConsoleProgram()
{
    reset_shared_state();
    platform = {};
}

std::string ConsoleProgram::page(int section)
{
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
