#include "platform/linux/SpaceInTime.h"

#include <chrono>
#include <future>
#include <mutex>
#include <set>
#include <sys/statvfs.h>
#include <thread>

namespace ostrelum {
namespace {

constexpr std::chrono::seconds LongestWait{2};

/// Paths whose answer is outstanding. Lives as long as the process: a worker may outlive all else.
struct Outstanding {
    std::mutex mutex;
    std::set<std::string> paths;

    bool begin(const std::string& path)
    {
        const std::lock_guard lock(mutex);
        return paths.insert(path).second;
    }
    void end(const std::string& path)
    {
        const std::lock_guard lock(mutex);
        paths.erase(path);
    }
};

Outstanding& outstanding()
{
    static auto* const lasting = new Outstanding;
    return *lasting;
}

std::optional<VolumeSpace> space_of(const std::string& path)
{
    struct statvfs told = {};
    if (::statvfs(path.c_str(), &told) != 0)
        return std::nullopt;
    return VolumeSpace{told.f_frsize, told.f_blocks, told.f_bfree, told.f_bavail};
}

} // namespace

std::optional<VolumeSpace> space_in_time(const std::string& path)
{
    if (!outstanding().begin(path))
        return std::nullopt;
    std::promise<std::optional<VolumeSpace>> promise;
    auto answer = promise.get_future();
    std::thread([path, promise = std::move(promise)]() mutable {
        auto space = space_of(path);
        // Before the answer is given: who has it may ask again at once.
        outstanding().end(path);
        promise.set_value(space);
    }).detach();
    if (answer.wait_for(LongestWait) != std::future_status::ready)
        return std::nullopt;
    return answer.get();
}

} // namespace ostrelum
