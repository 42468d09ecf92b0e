#include "platform/linux/recording/RecordedSystemCalls.h"

#include "platform/linux/text/Text.h"

#include <algorithm>
#include <limits>
#include <map>
#include <vector>

namespace ostrelum::linux_platform {
namespace {

/// Lines of a key and as many numbers behind it, sought by key. The first line of a key counts. A
/// key may hold blanks: only a line with nothing but the numbers behind it is its own.
class NumberLines {
public:
    NumberLines(std::string_view lines, std::size_t count) : count_(count)
    {
        for (const std::string_view line : lines_of(lines))
            take(line);
    }

    /// Nothing, or as many numbers as the lines have.
    std::optional<std::vector<std::uint64_t>> of(const std::string& key) const
    {
        const auto line = lines_.find(key);
        return line == lines_.end() ? std::nullopt : std::optional(line->second);
    }

private:
    void take(std::string_view line)
    {
        std::vector<std::uint64_t> numbers(count_);
        line = trimmed_space(line);
        for (auto number = numbers.rbegin(); number != numbers.rend(); ++number) {
            const std::size_t start = line.find_last_of(" \t") + 1;
            const auto read = whole_number(line.substr(start));
            if (start == 0 || !read)
                return;
            *number = *read;
            // A key may end with a blank itself.
            line = number + 1 == numbers.rend() ? line.substr(0, start - 1)
                                                : trimmed_space(line.substr(0, start));
        }
        lines_.try_emplace(std::string(line), numbers);
        lines_.try_emplace(std::string(trimmed_space(line)), std::move(numbers));
    }

    std::size_t count_;
    std::map<std::string, std::vector<std::uint64_t>> lines_;
};

/// The values behind the first separator of each line, by what stands before it. The first line of
/// a key counts.
std::map<std::string, std::string> values_by_key(std::string_view lines)
{
    std::map<std::string, std::string> values;
    for (const std::string_view line : lines_of(lines)) {
        const std::size_t sign = line.find('=');
        if (sign != line.npos)
            values.try_emplace(std::string(trimmed_space(line.substr(0, sign))),
                               trimmed_space(line.substr(sign + 1)));
    }
    return values;
}

/// Minutes ahead of UTC by moment; those behind it are negative. No zone is a day away.
std::map<std::string, int> offsets_by_moment(std::string_view lines)
{
    constexpr std::uint64_t day = 24 * 60;
    std::map<std::string, int> offsets;
    for (const std::string_view line : lines_of(lines)) {
        const auto words = words_of(line);
        const bool behind = words.size() == 2 && words[1].starts_with('-');
        const auto minutes =
            words.size() == 2 ? whole_number(words[1].substr(behind ? 1 : 0)) : std::nullopt;
        if (minutes && *minutes < day)
            offsets.try_emplace(std::string(words[0]),
                                behind ? -static_cast<int>(*minutes) : static_cast<int>(*minutes));
    }
    return offsets;
}

/// The last word of `uname -a` but one: behind it stands the name of the system alone.
std::optional<std::string> kind_in_uname(std::string_view uname)
{
    const auto words = words_of(trimmed_space(uname));
    return words.size() < 2 ? std::nullopt : text_or_none(words[words.size() - 2]);
}

/// "uid=1000(name) gid=...".
std::optional<std::uint32_t> number_in_id(std::string_view id)
{
    const auto uid = value_behind(id, "uid", '=');
    const auto number = uid ? whole_number(uid->substr(0, uid->find('('))) : std::nullopt;
    const bool fits = number && *number <= std::numeric_limits<std::uint32_t>::max();
    return fits ? std::optional(static_cast<std::uint32_t>(*number)) : std::nullopt;
}

class RecordedSystemCalls : public SystemCalls {
public:
    explicit RecordedSystemCalls(const Sysroot& root)
        : spaces_(record(root, "statvfs"), 4), births_(record(root, "btime"), 1),
          kind_(kind_in_uname(record(root, "uname"))), uid_(number_in_id(record(root, "id"))),
          environment_(values_by_key(record(root, "env"))), modes_(record(root, "modes"), 4),
          vram_(record(root, "vram"), 1), hardware_(values_by_key(record(root, "hwdb"))),
          passwords_(record(root, "password"), 2), logins_(record(root, "login"), 1),
          directory_(record(root, "passwd")), zone_(offsets_by_moment(record(root, "zone")))
    {
    }

    std::optional<VolumeSpace> space(const std::string& path) override
    {
        const auto numbers = spaces_.of(path);
        if (!numbers)
            return std::nullopt;
        return VolumeSpace{(*numbers)[0], (*numbers)[1], (*numbers)[2], (*numbers)[3]};
    }

    std::optional<std::int64_t> birth_time(const std::string& path) override
    {
        return moment_in(births_, path);
    }

    std::optional<std::string> processor_kind() override { return kind_; }

    std::optional<std::uint32_t> user_id() override { return uid_; }

    std::optional<std::string> variable(std::string_view name) override
    {
        return value_in(environment_, std::string(name));
    }

    std::optional<DisplayMode> display_mode(const std::string& connector) override
    {
        constexpr std::uint64_t beyond_any = 100'000'000;
        const auto numbers = modes_.of(connector);
        if (!numbers || std::ranges::any_of(*numbers, [](auto each) { return each > beyond_any; }))
            return std::nullopt;
        const auto number = [&](std::size_t i) { return static_cast<int>((*numbers)[i]); };
        return DisplayMode{number(0), number(1), number(2), number(3)};
    }

    std::optional<std::uint64_t> graphics_memory(const std::string& slot) override
    {
        const auto numbers = vram_.of(slot);
        return numbers ? std::optional(numbers->front()) : std::nullopt;
    }

    std::optional<std::string> hardware_name(const std::string& alias, const char* key) override
    {
        return value_in(hardware_, alias + " " + key);
    }

    std::optional<PasswordPolicy> password_policy(std::uint64_t uid) override
    {
        const auto numbers = passwords_.of(std::to_string(uid));
        if (!numbers)
            return std::nullopt;
        return PasswordPolicy{.expires = (*numbers)[0] != 0, .changeable = (*numbers)[1] != 0};
    }

    std::optional<std::int64_t> login_time(std::uint64_t uid) override
    {
        return moment_in(logins_, std::to_string(uid));
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
        const auto offset = zone_.find(std::to_string(moment));
        return offset == zone_.end() ? 0 : offset->second;
    }

private:
    static std::string record(const Sysroot& root, const std::string& name)
    {
        return root.read("/.facts/" + name).value_or("");
    }

    static std::optional<std::int64_t> moment_in(const NumberLines& lines, const std::string& key)
    {
        const auto numbers = lines.of(key);
        return numbers ? std::optional(static_cast<std::int64_t>(numbers->front())) : std::nullopt;
    }

    static std::optional<std::string> value_in(const std::map<std::string, std::string>& values,
                                               const std::string& key)
    {
        const auto value = values.find(key);
        return value == values.end() ? std::nullopt : std::optional(value->second);
    }

    NumberLines spaces_;
    NumberLines births_;
    std::optional<std::string> kind_;
    std::optional<std::uint32_t> uid_;
    std::map<std::string, std::string> environment_;
    NumberLines modes_;
    NumberLines vram_;
    std::map<std::string, std::string> hardware_;
    NumberLines passwords_;
    NumberLines logins_;
    std::string directory_;
    std::map<std::string, int> zone_;
};

} // namespace

std::unique_ptr<SystemCalls> recorded_system_calls(const Sysroot& root)
{
    return std::make_unique<RecordedSystemCalls>(root);
}

} // namespace ostrelum::linux_platform
