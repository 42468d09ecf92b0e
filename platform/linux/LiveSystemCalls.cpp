#include "platform/linux/LiveSystemCalls.h"

#include "platform/linux/accounts/AccountsService.h"
#include "platform/linux/devices/HardwareDatabase.h"
#include "platform/linux/devices/KernelMode.h"
#include "platform/linux/devices/NvidiaMemory.h"
#include "platform/linux/devices/SpaceInTime.h"
#include "platform/linux/services/Environment.h"

#include <array>
#include <ctime>
#include <fcntl.h>
#include <map>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/utsname.h>
#include <unistd.h>

namespace ostrelum::linux_platform {
namespace {

class LiveSystemCalls : public SystemCalls {
public:
    std::optional<VolumeSpace> space(const std::string& path) override
    {
        return space_in_time(path);
    }

    std::optional<std::int64_t> birth_time(const std::string& path) override
    {
        struct statx status = {};
        if (::statx(AT_FDCWD, path.c_str(), AT_SYMLINK_NOFOLLOW, STATX_BTIME, &status) != 0 ||
            (status.stx_mask & STATX_BTIME) == 0)
            return std::nullopt;
        return status.stx_btime.tv_sec;
    }

    std::optional<std::string> processor_kind() override
    {
        utsname names = {};
        if (::uname(&names) != 0)
            return std::nullopt;
        return names.machine;
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

    std::optional<std::string> hardware_name(const std::string& alias, const char* key) override
    {
        if (!hardware_)
            hardware_.emplace();
        return hardware_->text(alias, key);
    }

    std::optional<PasswordPolicy> password_policy(std::uint64_t uid) override
    {
        return linux_platform::password_policy(uid);
    }

    std::optional<std::int64_t> login_time(std::uint64_t uid) override
    {
        return linux_platform::login_time(uid);
    }

    std::optional<std::string> directory_account(std::uint64_t uid) override
    {
        std::array<char, 16384> texts = {};
        passwd entry = {};
        passwd* found = nullptr;
        const auto number = static_cast<uid_t>(uid);
        if (::getpwuid_r(number, &entry, texts.data(), texts.size(), &found) != 0 || !found)
            return std::nullopt;
        return std::string(entry.pw_name) + ":x:" + std::to_string(entry.pw_uid) + ":" +
               std::to_string(entry.pw_gid) + ":::";
    }

    int utc_offset(std::int64_t moment) override
    {
        const std::time_t second = moment;
        tm local = {};
        return ::localtime_r(&second, &local) ? static_cast<int>(local.tm_gmtoff / 60) : 0;
    }

private:
    std::map<std::string, std::optional<std::uint64_t>> graphics_memory_;
    std::optional<HardwareDatabase> hardware_;
    Environment environment_ = process_environment();
};

} // namespace

std::unique_ptr<SystemCalls> live_system_calls()
{
    return std::make_unique<LiveSystemCalls>();
}

} // namespace ostrelum::linux_platform
