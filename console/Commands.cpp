#include "console/Commands.h"

#include "console/ConsoleProgram.h"
#include "console/Json.h"
#include "frame/MainForm.h"
#include "report/Report.h"
#include "sources/Schema.h"

#include <algorithm>
#include <charconv>
#include <exception>
#include <iostream>
#include <new>

namespace ostrelum::console {
namespace {

constexpr int done = 0;
constexpr int failed = 1;
constexpr int wrong_usage = 2;

using Arguments = std::vector<std::string>;

int run_query(Host& host, const Options& options, const Arguments& arguments)
{
    if (arguments.size() != 1)
        return wrong_usage;
    const auto machine = host.open(options);
    std::cout << as_json(machine->management_service()->ExecQuery(arguments[0])) << '\n';
    return done;
}

/// The section that a word names; 0 for none.
int section_of(const std::string& word)
{
    int number = 0;
    const auto end = std::from_chars(word.data(), word.data() + word.size(), number);
    const bool whole = end.ec == std::errc() && end.ptr == word.data() + word.size();
    return whole && number >= 1 && number <= section_count ? number : 0;
}

int run_page(Host& host, const Options& options, const Arguments& arguments)
{
    const bool all = arguments.size() == 1 && arguments[0] == "all";
    const int section = arguments.size() == 1 ? section_of(arguments[0]) : 0;
    if (!all && section == 0)
        return wrong_usage;
    const auto machine = host.open(options);
    ConsoleProgram program(*machine, options.language);
    for (int n = all ? 1 : section; n <= (all ? section_count : section); ++n)
        std::cout << program.page(n) << (all && n < section_count ? "\n" : "");
    return done;
}

bool is_format(const std::string& word)
{
    const auto documents = made_documents();
    return std::ranges::any_of(
        documents, [&](const ReportDocument& document) { return word == document.format; });
}

int run_report(Host& host, const Options& options, const Arguments& arguments)
{
    const bool to_file =
        arguments.size() == 3 && arguments[1] == "--output" && !arguments[2].empty();
    if ((arguments.size() != 1 && !to_file) || !is_format(arguments[0]))
        return wrong_usage;
    const auto machine = host.open(options);
    ConsoleProgram program(*machine, options.language);
    const std::string& document = program.report(arguments[0]);
    if (to_file)
        program.save(arguments[2], document);
    else
        std::cout << with_lf(document);
    return done;
}

int run_record(Host& host, const Options& options, const Arguments& arguments)
{
    if (arguments.size() != 1 || arguments[0].empty())
        return wrong_usage;
    host.record(options, arguments[0]);
    return done;
}

int run_classes(Host&, const Options&, const Arguments& arguments)
{
    if (!arguments.empty())
        return wrong_usage;
    for (const ClassSchema& schema : class_schemas()) {
        std::cout << schema.name << '\n';
        for (const PropertySchema& property : schema.properties)
            std::cout << "  " << property.name << ": " << type_name(property.type) << '\n';
    }
    return done;
}

/// A command line that would be right on another system.
class NotHere : public Failure {
public:
    using Failure::Failure;
};

struct Command {
    std::string_view name;
    int (*run)(Host&, const Options&, const Arguments&);
};

constexpr Command commands[] = {
    {"query", run_query},   {"page", run_page},       {"report", run_report},
    {"record", run_record}, {"classes", run_classes},
};

int run(Host& host, const Options& options)
{
    const Arguments arguments(options.command.begin() + 1, options.command.end());
    const std::string& name = options.command.front();
    const Command* command = std::ranges::find(commands, name, &Command::name);
    if (command == std::end(commands))
        return wrong_usage;
    if (!host.knows_recordings() && (options.sysroot || command->run == run_record))
        throw NotHere("machines can neither be recorded nor shown from a recording on this system");
    return command->run(host, options, arguments);
}

} // namespace

int run_console(Host& host, const std::vector<std::string>& arguments)
{
    int code = wrong_usage;
    try {
        if (const auto options = read_options(arguments))
            code = run(host, *options);
    } catch (const NotHere& reason) {
        std::cerr << "ostrelum-console: " << reason.what() << '\n';
        return wrong_usage;
    } catch (const std::bad_alloc&) {
        std::cerr << "ostrelum-console: there is not enough memory\n";
        return failed;
    } catch (const std::exception& failure) {
        std::cerr << "ostrelum-console: " << failure.what() << '\n';
        return failed;
    }
    if (code == wrong_usage)
        std::cerr << usage;
    if (!std::cout.flush()) {
        std::cerr << "ostrelum-console: standard output cannot be written\n";
        return failed;
    }
    return code;
}

} // namespace ostrelum::console
