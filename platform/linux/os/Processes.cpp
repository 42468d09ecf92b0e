#include "platform/linux/os/Processes.h"

#include "platform/linux/text/Text.h"

#include <algorithm>
#include <string>

namespace ostrelum::linux_platform {
namespace {

/// PF_KTHREAD of the flags (include/linux/sched.h).
constexpr std::uint64_t kernel_thread = 0x00200000;
/// Place of the flags among the words behind the name, which may hold blanks and brackets itself.
constexpr std::size_t flags_word = 6;
/// The words up to the flags are a letter and numbers of at most 11 signs.
constexpr std::size_t flags_end = 80;

} // namespace

std::optional<bool> is_kernel_thread(std::string_view stat)
{
    const auto name_end = stat.rfind(')');
    if (name_end == stat.npos)
        return std::nullopt;
    const auto words = words_of(stat.substr(name_end + 1, flags_end));
    if (words.size() <= flags_word)
        return std::nullopt;
    const auto flags = whole_number(words[flags_word]);
    return flags ? std::optional((*flags & kernel_thread) != 0) : std::nullopt;
}

std::optional<std::uint32_t> process_count(const Sysroot& root, std::vector<SeenProcess>& seen)
{
    std::vector<SeenProcess> there;
    const auto look_at = [&](std::uint64_t number, const std::string& name) {
        const auto before = std::ranges::lower_bound(seen, number, {}, &SeenProcess::number);
        const bool known = before != seen.end() && before->number == number;
        if (known && before->for_good) {
            there.push_back(*before);
            return;
        }
        // A process that has ended since the listing has no line any more.
        const auto stat = root.read("/proc/" + name + "/stat", 4096);
        const auto kernels = stat ? is_kernel_thread(*stat) : std::nullopt;
        if (kernels)
            there.push_back({number, *kernels, !*kernels || known});
    };
    for (const std::string& name : root.list_unsorted("/proc")) {
        // The kernel writes no zeros in front, so that each number is there once.
        const auto number = whole_number(name);
        if (number && name.front() != '0')
            look_at(*number, name);
    }
    std::ranges::sort(there, {}, &SeenProcess::number);
    seen = std::move(there);
    // A user who may not see the first process sees only his own processes.
    if (seen.empty() || seen.front().number != 1)
        return std::nullopt;
    return static_cast<std::uint32_t>(std::ranges::count(seen, false, &SeenProcess::kernel_thread));
}

} // namespace ostrelum::linux_platform
