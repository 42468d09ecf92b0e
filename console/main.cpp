#include "console/Json.h"
#include "console/Machine.h"
#include "console/Options.h"
#include "console/Record.h"
#include "frame/MainForm.h"
#include "report/Report.h"
#include "sources/Schema.h"

#include <algorithm>
#include <charconv>
#include <iostream>

using namespace ostrelum;
using namespace ostrelum::console;

namespace {

constexpr int Done = 0;
constexpr int Failed = 1;
constexpr int WrongUsage = 2;

using Arguments = std::vector<std::string>;

int run_query(const Options& options, const Arguments& arguments)
{
    if (arguments.size() != 1)
        return WrongUsage;
    const auto service = service_of(options, Sysroot(options.sysroot));
    std::cout << as_json(service->ExecQuery(arguments[0])) << '\n';
    return Done;
}

/// The section that a word names; 0 for none.
int section_of(const std::string& word)
{
    int number = 0;
    const auto end = std::from_chars(word.data(), word.data() + word.size(), number);
    const bool whole = end.ec == std::errc() && end.ptr == word.data() + word.size();
    return whole && number >= 1 && number <= section_count ? number : 0;
}

int run_page(const Options& options, const Arguments& arguments)
{
    const bool all = arguments.size() == 1 && arguments[0] == "all";
    const int section = arguments.size() == 1 ? section_of(arguments[0]) : 0;
    if (!all && section == 0)
        return WrongUsage;
    ConsoleMachine machine(options);
    for (int n = all ? 1 : section; n <= (all ? section_count : section); ++n)
        std::cout << machine.page(n) << (all && n < section_count ? "\n" : "");
    return Done;
}

bool is_format(const std::string& word)
{
    const auto documents = made_documents();
    return std::ranges::any_of(
        documents, [&](const ReportDocument& document) { return word == document.format; });
}

int run_report(const Options& options, const Arguments& arguments)
{
    const bool to_file =
        arguments.size() == 3 && arguments[1] == "--output" && !arguments[2].empty();
    if ((arguments.size() != 1 && !to_file) || !is_format(arguments[0]))
        return WrongUsage;
    ConsoleMachine machine(options);
    const std::string& document = machine.report(arguments[0]);
    if (to_file)
        machine.save(arguments[2], document);
    else
        std::cout << with_lf(document);
    return Done;
}

int run_record(const Options& options, const Arguments& arguments)
{
    if (arguments.size() != 1 || arguments[0].empty())
        return WrongUsage;
    record_machine(options, arguments[0]);
    return Done;
}

int run_classes(const Options&, const Arguments& arguments)
{
    if (!arguments.empty())
        return WrongUsage;
    for (const ClassSchema& schema : class_schemas()) {
        std::cout << schema.name << '\n';
        for (const PropertySchema& property : schema.properties)
            std::cout << "  " << property.name << ": " << type_name(property.type) << '\n';
    }
    return Done;
}

struct Command {
    std::string_view name;
    int (*run)(const Options&, const Arguments&);
};

constexpr Command commands[] = {
    {"query", run_query},   {"page", run_page},       {"report", run_report},
    {"record", run_record}, {"classes", run_classes},
};

int run(const Options& options)
{
    const Arguments arguments(options.command.begin() + 1, options.command.end());
    for (const Command& command : commands) {
        if (command.name == options.command.front())
            return command.run(options, arguments);
    }
    return WrongUsage;
}

} // namespace

int main(int argc, char** argv)
{
    const auto options = read_options({argv + 1, argv + argc});
    int code = WrongUsage;
    try {
        if (options)
            code = run(*options);
    } catch (const Failure& failure) {
        std::cerr << "ostrelum-console: " << failure.what() << '\n';
        return Failed;
    }
    if (code == WrongUsage)
        std::cerr << usage;
    if (!std::cout.flush()) {
        std::cerr << "ostrelum-console: standard output cannot be written\n";
        return Failed;
    }
    return code;
}
