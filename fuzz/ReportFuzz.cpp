#include "console/ConsoleProgram.h"
#include "console/linux/LinuxHost.h"
#include "fuzz/Cleanness.h"
#include "fuzz/RenamedSysroot.h"
#include "platform/linux/LinuxManagementService.h"
#include "report/Report.h"
#include "sources/Schema.h"

#include <array>
#include <cstdint>
#include <cstdlib>

using namespace ostrelum;
using namespace ostrelum::linux_platform;
using namespace ostrelum::console;

namespace {

void require(bool held)
{
    if (!held)
        std::abort();
}

/// One line for each text that the management service gives.
void check_service(const std::string& root)
{
    const auto service = make_linux_management_service(root, SessionFactsSource());
    for (const ClassSchema& schema : class_schemas()) {
        for (const Instance& object :
             service->ExecQuery("Select * from " + std::string(schema.name)))
            for (const auto& [name, value] : object.properties())
                require(!value.is_text() || is_clean_line(value.text()));
    }
}

/// Every page, and each document of a report, as the window shows and saves them.
void check_program(const std::string& root, const std::string& user)
{
    const auto machine = LinuxHost().open({.sysroot = root, .user = user});
    ConsoleProgram program(*machine, "English");
    for (int section = 1; section <= 13; ++section)
        require(are_clean_lines(program.page(section), "\n"));
    program.report("text");
    for (const ReportDocument& document : made_documents()) {
        std::string text = *document.text;
        std::erase(text, '\t'); // HTML's own
        require(are_clean_lines(text, "\r\n"));
        require(ansi_file(*document.text).size() > 2);
    }
}

} // namespace

/// Any bytes as the name of everything and of the user: pages and reports are made of them, and all
/// that they show is clean text. The first byte also chooses the machine.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string folder = OSTRELUM_TESTS_DIR "/machines/";
    static const std::array<RenamedSysroot, 3> machines{RenamedSysroot(folder + "removable"),
                                                        RenamedSysroot(folder + "desktop"),
                                                        RenamedSysroot(folder + "notebook")};
    const RenamedSysroot& machine = machines[size > 0 ? data[0] % machines.size() : 0];
    const std::string name(data, data + size);
    machine.rename_all(name);
    check_service(machine.root());
    check_program(machine.root(), name);
    return 0;
}
