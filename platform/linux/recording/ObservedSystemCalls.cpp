#include "platform/linux/recording/ObservedSystemCalls.h"

#include <utility>

namespace ostrelum::linux_platform {
namespace {

std::string numbers(std::initializer_list<std::int64_t> all)
{
    std::string text;
    for (const std::int64_t number : all)
        text += (text.empty() ? "" : " ") + std::to_string(number);
    return text;
}

class ObservedSystemCalls : public SystemCalls {
public:
    ObservedSystemCalls(std::unique_ptr<SystemCalls> calls,
                        std::shared_ptr<AccessObserver> observer)
        : calls_(std::move(calls)), observer_(std::move(observer))
    {
    }

    std::optional<VolumeSpace> space(const std::string& path) override
    {
        return observed("statvfs", path, calls_->space(path), [](const VolumeSpace& space) {
            std::string text;
            for (const std::uint64_t each : {space.block_size, space.blocks, space.free})
                text += std::to_string(each) + " ";
            return text + std::to_string(space.available);
        });
    }

    std::optional<std::int64_t> birth_time(const std::string& path) override
    {
        return observed("btime", path, calls_->birth_time(path), number);
    }

    /// In the place that it has in `uname -a`.
    std::optional<std::string> processor_kind() override
    {
        return observed("uname", "Linux", calls_->processor_kind(),
                        [](const std::string& kind) { return kind + " GNU/Linux"; });
    }

    std::optional<std::uint32_t> user_id() override
    {
        const auto id = calls_->user_id();
        if (id)
            observer_->on_answer("id", "uid=" + std::to_string(*id), "");
        return id;
    }

    std::optional<std::string> variable(std::string_view name) override
    {
        auto value = calls_->variable(name);
        if (value)
            observer_->on_answer("env", std::string(name) + "=" + *value, "");
        return value;
    }

    std::optional<DisplayMode> display_mode(const std::string& connector) override
    {
        return observed(
            "modes", connector, calls_->display_mode(connector), [](const DisplayMode& mode) {
                return numbers({mode.width, mode.height, mode.bits_per_pixel, mode.refresh_mHz});
            });
    }

    std::optional<std::uint64_t> graphics_memory(const std::string& slot) override
    {
        return observed("vram", slot, calls_->graphics_memory(slot),
                        [](std::uint64_t bytes) { return std::to_string(bytes); });
    }

    std::optional<std::string> hardware_name(const std::string& alias, const char* key) override
    {
        auto name = calls_->hardware_name(alias, key);
        if (name)
            observer_->on_answer("hwdb", alias + " " + key + "=" + *name, "");
        return name;
    }

    std::optional<PasswordPolicy> password_policy(std::uint64_t uid) override
    {
        return observed("password", std::to_string(uid), calls_->password_policy(uid),
                        [](const PasswordPolicy& policy) {
                            return numbers({policy.expires, policy.changeable});
                        });
    }

    std::optional<std::int64_t> login_time(std::uint64_t uid) override
    {
        return observed("login", std::to_string(uid), calls_->login_time(uid), number);
    }

    std::optional<std::string> directory_account(std::uint64_t uid) override
    {
        auto line = calls_->directory_account(uid);
        if (line)
            observer_->on_answer("passwd", *line, "");
        return line;
    }

    int utc_offset(std::int64_t moment) override
    {
        const int minutes = calls_->utc_offset(moment);
        observer_->on_answer("zone", std::to_string(moment), std::to_string(minutes));
        return minutes;
    }

private:
    static std::string number(std::int64_t each) { return std::to_string(each); }

    template <class Known, class Text>
    std::optional<Known> observed(const char* list, const std::string& key,
                                  std::optional<Known> answer, const Text& text)
    {
        if (answer)
            observer_->on_answer(list, key, text(*answer));
        return answer;
    }

    std::unique_ptr<SystemCalls> calls_;
    std::shared_ptr<AccessObserver> observer_;
};

} // namespace

std::unique_ptr<SystemCalls> observed_system_calls(std::unique_ptr<SystemCalls> calls,
                                                   std::shared_ptr<AccessObserver> observer)
{
    return std::make_unique<ObservedSystemCalls>(std::move(calls), std::move(observer));
}

} // namespace ostrelum::linux_platform
