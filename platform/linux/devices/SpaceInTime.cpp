#include "platform/linux/devices/SpaceInTime.h"

#include <chrono>
#include <future>
#include <memory>
#include <mutex>
#include <set>
#include <sys/statvfs.h>
#include <system_error>
#include <thread>

namespace ostrelum::linux_platform {
namespace {

using Milliseconds = std::chrono::milliseconds;
using Space = std::optional<VolumeSpace>;

constexpr Milliseconds longest_wait{2000};
/// While another answer is overdue: ten volumes that do not answer take little longer than one.
constexpr Milliseconds shorter_wait{100};

/// Paths whose answer is outstanding. Lives as long as the process: a worker may outlive all else.
struct Outstanding {
    std::mutex mutex;
    std::set<std::string> paths;

    /// How long to wait for the answer; nothing if it is outstanding already.
    std::optional<Milliseconds> begin(const std::string& path)
    {
        const std::lock_guard lock(mutex);
        const auto wait = paths.empty() ? longest_wait : shorter_wait;
        return paths.insert(path).second ? std::optional(wait) : std::nullopt;
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

Space space_of(const std::string& path)
{
    struct statvfs space = {};
    if (::statvfs(path.c_str(), &space) != 0)
        return std::nullopt;
    return VolumeSpace{space.f_frsize, space.f_blocks, space.f_bfree, space.f_bavail};
}

/// Asks in a thread of its own, which is left to itself if the answer does not come.
std::future<Space> ask(const std::string& path)
{
    const auto promise = std::make_shared<std::promise<Space>>();
    const auto answer = [=](const Space& space) {
        // Before the answer is given: its receiver may ask again at once.
        outstanding().end(path);
        promise->set_value(space);
    };
    try {
        std::thread([=] { answer(space_of(path)); }).detach();
    } catch (const std::system_error&) {
        // The user may have no more threads.
        answer(std::nullopt);
    }
    return promise->get_future();
}

} // namespace

std::optional<VolumeSpace> space_in_time(const std::string& path)
{
    const auto longest = outstanding().begin(path);
    if (!longest)
        return std::nullopt;
    auto answer = ask(path);
    if (answer.wait_for(*longest) != std::future_status::ready)
        return std::nullopt;
    return answer.get();
}

} // namespace ostrelum::linux_platform
