#include "fuzz/Target.h"
#include "platform/linux/devices/CpuPackages.h"

#include <set>
#include <sstream>

using namespace ostrelum;
using namespace ostrelum::linux_platform;

namespace {

/// What a list such as "0-3,6" holds, taken apart in another way.
std::set<std::uint64_t> members(const std::string& list)
{
    std::set<std::uint64_t> numbers;
    std::istringstream pieces(list);
    for (std::string piece; std::getline(pieces, piece, ',');) {
        const std::uint64_t first = std::stoull(piece);
        const auto hyphen = piece.find('-');
        const std::uint64_t last =
            hyphen == piece.npos ? first : std::stoull(piece.substr(hyphen + 1));
        for (std::uint64_t number = first; number <= last; ++number)
            numbers.insert(number);
    }
    return numbers;
}

} // namespace

/// Any bytes as a list of processors and as /proc/cpuinfo: the list is what it says and no longer
/// than a machine's, texts are clean and clocks run.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr std::size_t most_cpus = 65536;
    const std::string text(data, data + size);
    const auto numbers = numbers_of_list(text);
    require(numbers.size() <= most_cpus);
    const std::set<std::uint64_t> once(numbers.begin(), numbers.end());
    require(once.empty() || (once == members(text) && once.size() == numbers.size()));
    const CpuInfo cpuinfo(text);
    for (const std::uint64_t cpu : {0U, 1U, 7U}) {
        const CpuRecord record = cpuinfo.of(cpu);
        const auto name = record.text({"model name", "Model", "cpu", "uarch", "vendor_id"});
        require_clean(name);
        for (const auto& clock : {record.megahertz(), record.rated_megahertz()})
            require(!clock || *clock > 0);
        require(megahertz_in_name(name.value_or("")).value_or(0) <= 100'000);
        const auto maker = record.number("CPU implementer").value_or(0);
        require_clean(arm_maker(maker));
        require_clean(arm_name(maker, record.number("CPU part").value_or(0)));
    }
    return 0;
}
