#include "platform/linux/Environment.h"
#include "platform/linux/Facts.h"
#include "platform/linux/KernelMode.h"
#include "platform/linux/NvidiaMemory.h"

#include <ctime>
#include <fcntl.h>
#include <map>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/utsname.h>
#include <unistd.h>

namespace ostrelum {
namespace {

class LiveFacts : public Facts {
public:
    std::optional<VolumeSpace> space(const std::string& path) override
    {
        struct statvfs told = {};
        if (::statvfs(path.c_str(), &told) != 0)
            return std::nullopt;
        return VolumeSpace{told.f_frsize, told.f_blocks, told.f_bfree, told.f_bavail};
    }

    std::optional<std::int64_t> birth_time(const std::string& path) override
    {
        struct statx told = {};
        if (::statx(AT_FDCWD, path.c_str(), AT_SYMLINK_NOFOLLOW, STATX_BTIME, &told) != 0 ||
            (told.stx_mask & STATX_BTIME) == 0)
            return std::nullopt;
        return told.stx_btime.tv_sec;
    }

    std::optional<std::string> processor_kind() override
    {
        utsname told = {};
        if (::uname(&told) != 0)
            return std::nullopt;
        return told.machine;
    }

    std::optional<std::uint32_t> user_id() override { return ::getuid(); }

    std::optional<std::string> variable(std::string_view name) override
    {
        const auto found = environment_.find(name);
        if (found == environment_.end())
            return std::nullopt;
        return found->second;
    }

    std::optional<DisplayMode> display_mode(const std::string& connector) override
    {
        return kernel_mode(connector);
    }

    std::optional<std::uint64_t> graphics_memory(const std::string& slot) override
    {
        // The driver's library takes a while to start, and the figure does not change.
        const auto [entry, is_new] = graphics_memory_.try_emplace(slot);
        if (is_new)
            entry->second = nvidia_memory(slot);
        return entry->second;
    }

    int utc_offset(std::int64_t moment) override
    {
        const std::time_t second = moment;
        tm local = {};
        return ::localtime_r(&second, &local) ? static_cast<int>(local.tm_gmtoff / 60) : 0;
    }

private:
    std::map<std::string, std::optional<std::uint64_t>> graphics_memory_;
    Environment environment_ = process_environment();
};

} // namespace

std::unique_ptr<Facts> live_facts()
{
    return std::make_unique<LiveFacts>();
}

} // namespace ostrelum
