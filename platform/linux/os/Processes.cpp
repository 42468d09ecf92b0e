#include "platform/linux/os/Processes.h"

#include "platform/linux/text/Text.h"

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

std::optional<std::uint32_t> process_count(const Sysroot& root)
{
    std::uint32_t count = 0;
    bool sees_all = false;
    for (const std::string& name : root.list("/proc")) {
        if (!whole_number(name))
            continue;
        // A process that has ended since the listing has no line any more.
        const auto stat = root.read("/proc/" + name + "/stat", 4096);
        if (stat && is_kernel_thread(*stat) == false)
            ++count;
        // A user who may not see the first process sees only his own processes.
        sees_all |= stat && name == "1";
    }
    return sees_all ? std::optional(count) : std::nullopt;
}

} // namespace ostrelum::linux_platform
