#include "console/ConsoleProgram.h"
#include "console/linux/LinuxHost.h"
#include "figures/Shared.h"
#include "fuzz/Target.h"
#include "platform/linux/services/SystemApi.h"
#include "platform/masking/MaskedService.h"
#include "platform/wql/ClassQuery.h"
#include "report/Report.h"

#include <array>
#include <memory>

using namespace ostrelum;
using namespace ostrelum::linux_platform;
using namespace ostrelum::console;

namespace {

constexpr const char* planted = "zq7planted";

/// Whatever has a name is called so; what identifies anybody, when masked, by a name to look for.
struct Names {
    std::string name;
    bool masked = false;
    /// Chooses the numbers and the days.
    std::size_t turn = 0;
};

Value value_of(const PropertySchema& property, const Names& names, std::size_t place)
{
    const std::size_t which = (place + names.turn) % 8;
    switch (property.type) {
    case CimType::Boolean: return which % 2 == 0;
    case CimType::DateTime:
        return std::array<Value, 2>{{{}, "20240229123456.000000+060"}}[which % 2];
    case CimType::String:
        return names.masked && property.identity != Identity::None ? planted : names.name;
    default: return std::array<Value, 8>{{{}, 0, 1, 2, 3, 5, 1024, 65535}}[which];
    }
}

/// Two objects of each class.
class NamedService : public ManagementService {
public:
    explicit NamedService(const Names& names) : names_(names) {}

    ResultSet ExecQuery(std::string_view wql) override
    {
        const WqlQuery query = parse_wql(wql);
        const ClassSchema& schema = schema_of(query.class_name);
        return run_query(query, schema, [&](const ObjectVisitor& visit) {
            for (std::size_t row = 0; row < 2; ++row)
                visit([&](std::size_t column) {
                    return value_of(schema.properties[column], names_, row + column);
                });
        });
    }

private:
    const Names& names_;
};

/// A machine with such a service.
class NamedMachine : public HostedMachine {
public:
    explicit NamedMachine(const Names& names) : names_(names) {}

    Platform services() override { return machine_->services(); }
    std::unique_ptr<ManagementService> management_service() override
    {
        auto service = std::make_unique<NamedService>(names_);
        if (!names_.masked)
            return service;
        return std::make_unique<MaskedService>(std::move(service), planted);
    }
    std::unique_ptr<Shell> shell_over(std::unique_ptr<Shell> stored) override
    {
        return machine_->shell_over(std::move(stored));
    }

private:
    const Names& names_;
    std::unique_ptr<HostedMachine> machine_ =
        LinuxHost().open({.sysroot = OSTRELUM_TESTS_DIR "/machines/notebook"});
};

/// Clean, and without the name that is to be hidden, unless everything is called so.
void check(std::string text, std::string_view line_end, const Names& names)
{
    std::erase(text, '\t'); // HTML's own
    require(are_clean_lines(text, line_end));
    require(text.find(planted) == text.npos || names.name.find(planted) != text.npos);
}

} // namespace

/// Any bytes as the name of everything that has one, the user too: pages and reports are clean text
/// that can be saved, and masked they hold nothing of what identifies anybody. The first byte
/// chooses numbers, pages and document, and whether all is masked.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static Names names;
    names = {made_valid_utf8({reinterpret_cast<const char*>(data), size}),
             size > 0 && data[0] % 2 == 1, size > 0 ? data[0] / 2U : 0U};
    static NamedMachine machine(names);
    static ConsoleProgram program(machine, "English");
    LinuxSystemApi user(Sysroot(OSTRELUM_TESTS_DIR "/machines/notebook"), {},
                        names.masked ? std::string(hidden_text) : std::string(data, data + size));
    platform.system_api = &user;
    WmiService = platform.get_object("");
    constexpr std::size_t sections = 13, step = 4;
    for (std::size_t section = 1 + names.turn % step; section <= sections; section += step)
        check(program.page(static_cast<int>(section)), "\n", names);
    program.report("text");
    const auto documents = made_documents();
    const std::string& document = *documents[names.turn % documents.size()].text;
    check(document, "\r\n", names);
    require(ansi_file(document).size() > 2);
    return 0;
}
