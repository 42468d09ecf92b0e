#include "fuzz/Target.h"
#include "platform/linux/LinuxManagementService.h"
#include "platform/linux/recording/MaskedRecording.h"
#include "platform/linux/recording/Recorder.h"
#include "sources/Schema.h"

#include <memory>
#include <vector>

using namespace ostrelum;
using namespace ostrelum::linux_platform;

namespace {

using Answers = std::vector<std::vector<Instance::Property>>;

/// What the page of the operating system asks again each second, of a machine that stays the same.
void require_unchanged_ticks(ManagementService& service)
{
    const auto count = [&] {
        std::vector<Value> values;
        for (const Instance& system :
             service.ExecQuery("Select NumberOfProcesses from Win32_OperatingSystem"))
            values.push_back(system["NumberOfProcesses"]);
        return values;
    };
    const auto first = count();
    require(count() == first && count() == first);
}

/// Every object of every class, of the types that the schema has and in clean lines.
Answers answers(const Sysroot& root)
{
    Answers found;
    const auto service = make_linux_management_service(root, {});
    for (const ClassSchema& schema : class_schemas()) {
        for (const Instance& object :
             service->ExecQuery("Select * from " + std::string(schema.name))) {
            found.push_back(object.properties());
            require(found.back().size() == schema.properties.size());
            for (const auto& [name, value] : found.back())
                require(!value.is_text() || is_clean_line(value.text()));
        }
    }
    require_unchanged_ticks(*service);
    return found;
}

/// The answers of the machine that a recording holds; nothing for a recording that is refused,
/// because it has a folder where it has a file.
std::optional<Answers> answers(const Recording& recording, const std::string& folder)
{
    try {
        write_recording(recording, folder);
    } catch (const Failure&) {
        return std::nullopt;
    }
    return answers(Sysroot(folder));
}

} // namespace

/// Any bytes as a small machine, written into a folder: every class answers, and the recording that
/// is made of it meanwhile answers the same; masked, each class of it answers, too.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const TemporaryFolder folder;
    const Recording given = machine_of_text(std::string(data, data + size));
    if (!answers(given, folder / "machine"))
        return 0;
    const Sysroot machine(folder / "machine");
    const auto seen = std::make_shared<Recorder>(machine);
    const Answers first = answers(Sysroot(machine, seen));
    const auto again = answers(seen->recording(), folder / "again");
    require(!again || *again == first);
    answers(masked_recording(given, {"eva"}), folder / "masked");
    return 0;
}
