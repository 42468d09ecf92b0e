#include "platform/linux/files/Facts.h"

#include <utility>

namespace ostrelum {
namespace {

std::string numbers(std::initializer_list<std::int64_t> all)
{
    std::string text;
    for (const std::int64_t number : all)
        text += (text.empty() ? "" : " ") + std::to_string(number);
    return text;
}

class WitnessedFacts : public Facts {
public:
    WitnessedFacts(std::unique_ptr<Facts> facts, std::shared_ptr<Witness> witness)
        : facts_(std::move(facts)), witness_(std::move(witness))
    {
    }

    std::optional<VolumeSpace> space(const std::string& path) override
    {
        return told("statvfs", path, facts_->space(path), [](const VolumeSpace& space) {
            std::string text;
            for (const std::uint64_t each : {space.block_size, space.blocks, space.free})
                text += std::to_string(each) + " ";
            return text + std::to_string(space.available);
        });
    }

    std::optional<std::int64_t> birth_time(const std::string& path) override
    {
        return told("btime", path, facts_->birth_time(path), number);
    }

    /// In the place that it has in `uname -a`.
    std::optional<std::string> processor_kind() override
    {
        return told("uname", "Linux", facts_->processor_kind(),
                    [](const std::string& kind) { return kind + " GNU/Linux"; });
    }

    std::optional<std::uint32_t> user_id() override
    {
        const auto id = facts_->user_id();
        if (id)
            witness_->told("id", "uid=" + std::to_string(*id), "");
        return id;
    }

    std::optional<std::string> variable(std::string_view name) override
    {
        auto value = facts_->variable(name);
        if (value)
            witness_->told("env", std::string(name) + "=" + *value, "");
        return value;
    }

    std::optional<DisplayMode> display_mode(const std::string& connector) override
    {
        return told(
            "modes", connector, facts_->display_mode(connector), [](const DisplayMode& mode) {
                return numbers({mode.width, mode.height, mode.bits_per_pixel, mode.refresh_mHz});
            });
    }

    std::optional<std::uint64_t> graphics_memory(const std::string& slot) override
    {
        return told("vram", slot, facts_->graphics_memory(slot),
                    [](std::uint64_t bytes) { return std::to_string(bytes); });
    }

    std::optional<PasswordPolicy> password_policy(std::uint64_t uid) override
    {
        return told("password", std::to_string(uid), facts_->password_policy(uid),
                    [](const PasswordPolicy& policy) {
                        return numbers({policy.expires, policy.changeable});
                    });
    }

    std::optional<std::int64_t> login_time(std::uint64_t uid) override
    {
        return told("login", std::to_string(uid), facts_->login_time(uid), number);
    }

    std::optional<std::string> directory_account(std::uint64_t uid) override
    {
        auto line = facts_->directory_account(uid);
        if (line)
            witness_->told("passwd", *line, "");
        return line;
    }

    int utc_offset(std::int64_t moment) override
    {
        const int minutes = facts_->utc_offset(moment);
        witness_->told("zone", std::to_string(moment), std::to_string(minutes));
        return minutes;
    }

private:
    static std::string number(std::int64_t each) { return std::to_string(each); }

    template <class Known, class Text>
    std::optional<Known> told(const char* list, const std::string& key, std::optional<Known> fact,
                              const Text& text)
    {
        if (fact)
            witness_->told(list, key, text(*fact));
        return fact;
    }

    std::unique_ptr<Facts> facts_;
    std::shared_ptr<Witness> witness_;
};

} // namespace

std::unique_ptr<Facts> witnessed_facts(std::unique_ptr<Facts> facts,
                                       std::shared_ptr<Witness> witness)
{
    return std::make_unique<WitnessedFacts>(std::move(facts), std::move(witness));
}

} // namespace ostrelum
