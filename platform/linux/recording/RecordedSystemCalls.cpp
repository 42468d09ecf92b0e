#include "platform/linux/recording/RecordedSystemCalls.h"

#include "platform/linux/text/Text.h"

namespace ostrelum::linux_platform {
namespace {

/// The numbers that stand behind a path in the line that begins with it. Paths can hold blanks:
/// only a line with nothing but numbers behind the path is that path's.
std::optional<std::vector<std::uint64_t>> numbers_of(std::string_view lines, std::string_view path,
                                                     std::size_t count)
{
    for (const std::string_view line : lines_of(lines)) {
        if (!line.starts_with(path))
            continue;
        const auto words = words_of(line.substr(path.size()));
        std::vector<std::uint64_t> numbers;
        for (const std::string_view word : words) {
            if (const auto number = whole_number(word))
                numbers.push_back(*number);
        }
        if (words.size() == count && numbers.size() == count)
            return numbers;
    }
    return std::nullopt;
}

class RecordedSystemCalls : public SystemCalls {
public:
    explicit RecordedSystemCalls(const Sysroot& root)
        : spaces_(record(root, "statvfs")), births_(record(root, "btime")),
          uname_(record(root, "uname")), id_(record(root, "id")), environment_(record(root, "env")),
          modes_(record(root, "modes")), vram_(record(root, "vram")),
          passwords_(record(root, "password")), logins_(record(root, "login")),
          directory_(record(root, "passwd")), zone_(record(root, "zone"))
    {
    }

    std::optional<VolumeSpace> space(const std::string& path) override
    {
        const auto numbers = numbers_of(spaces_, path, 4);
        if (!numbers)
            return std::nullopt;
        return VolumeSpace{(*numbers)[0], (*numbers)[1], (*numbers)[2], (*numbers)[3]};
    }

    std::optional<std::int64_t> birth_time(const std::string& path) override
    {
        const auto numbers = numbers_of(births_, path, 1);
        if (!numbers)
            return std::nullopt;
        return static_cast<std::int64_t>(numbers->front());
    }

    /// The last word but one: behind it stands the name of the system alone.
    std::optional<std::string> processor_kind() override
    {
        const auto words = words_of(trimmed_space(uname_));
        return words.size() < 2 ? std::nullopt : text_or_none(words[words.size() - 2]);
    }

    /// "uid=1000(name) gid=...".
    std::optional<std::uint32_t> user_id() override
    {
        const auto uid = value_behind(id_, "uid", '=');
        const auto number = uid ? whole_number(uid->substr(0, uid->find('('))) : std::nullopt;
        return number ? std::optional(static_cast<std::uint32_t>(*number)) : std::nullopt;
    }

    std::optional<std::string> variable(std::string_view name) override
    {
        const auto value = value_behind(environment_, name, '=');
        return value ? std::optional<std::string>(*value) : std::nullopt;
    }

    std::optional<DisplayMode> display_mode(const std::string& connector) override
    {
        const auto numbers = numbers_of(modes_, connector, 4);
        if (!numbers)
            return std::nullopt;
        const auto number = [&](std::size_t i) { return static_cast<int>((*numbers)[i]); };
        return DisplayMode{number(0), number(1), number(2), number(3)};
    }

    std::optional<std::uint64_t> graphics_memory(const std::string& slot) override
    {
        const auto numbers = numbers_of(vram_, slot, 1);
        return numbers ? std::optional(numbers->front()) : std::nullopt;
    }

    std::optional<PasswordPolicy> password_policy(std::uint64_t uid) override
    {
        const auto numbers = numbers_of(passwords_, std::to_string(uid) + " ", 2);
        if (!numbers)
            return std::nullopt;
        return PasswordPolicy{.expires = (*numbers)[0] != 0, .changeable = (*numbers)[1] != 0};
    }

    std::optional<std::int64_t> login_time(std::uint64_t uid) override
    {
        const auto numbers = numbers_of(logins_, std::to_string(uid) + " ", 1);
        return numbers ? std::optional(static_cast<std::int64_t>(numbers->front())) : std::nullopt;
    }

    std::optional<std::string> directory_account(std::uint64_t uid) override
    {
        const std::string number = ":x:" + std::to_string(uid) + ":";
        for (const std::string_view line : lines_of(directory_)) {
            if (line.find(number) != line.npos)
                return std::string(line);
        }
        return std::nullopt;
    }

    int utc_offset(std::int64_t moment) override
    {
        const auto ahead = numbers_of(zone_, std::to_string(moment) + " ", 1);
        const auto behind = numbers_of(zone_, std::to_string(moment) + " -", 1);
        return static_cast<int>(ahead ? ahead->front() : 0) -
               static_cast<int>(behind ? behind->front() : 0);
    }

private:
    static std::string record(const Sysroot& root, const std::string& name)
    {
        return root.read("/.facts/" + name).value_or("");
    }

    std::string spaces_;
    std::string births_;
    std::string uname_;
    std::string id_;
    std::string environment_;
    std::string modes_;
    std::string vram_;
    std::string passwords_;
    std::string logins_;
    std::string directory_;
    std::string zone_;
};

} // namespace

std::unique_ptr<SystemCalls> recorded_system_calls(const Sysroot& root)
{
    return std::make_unique<RecordedSystemCalls>(root);
}

} // namespace ostrelum::linux_platform
