#include "platform/linux/accounts/AccountsService.h"

#include "platform/linux/accounts/BusLibrary.h"

#include <chrono>
#include <memory>
#include <string>
#include <unistd.h>

namespace ostrelum::linux_platform {
namespace {

constexpr const char* bus_socket = "/run/dbus/system_bus_socket";
constexpr const char* service_name = "org.freedesktop.Accounts";
constexpr const char* user_interface = "org.freedesktop.Accounts.User";

struct Release {
    void operator()(sd_bus* bus) const { bus_library()->close_unref(bus); }
    void operator()(sd_bus_message* message) const { bus_library()->message_unref(message); }
};
using Bus = std::unique_ptr<sd_bus, Release>;
using Message = std::unique_ptr<sd_bus_message, Release>;

/// The end of all waiting for one answer, the handshake with the bus included.
class Deadline {
public:
    /// Microseconds.
    std::uint64_t left() const
    {
        using std::chrono::microseconds;
        const auto span = std::chrono::duration_cast<microseconds>(end_ - Clock::now()).count();
        return span > 0 ? static_cast<std::uint64_t>(span) : 0;
    }

private:
    using Clock = std::chrono::steady_clock;
    Clock::time_point end_ = Clock::now() + std::chrono::milliseconds(500);
};

/// Completes the handshake with the bus. A call would do it too, but waits 25 seconds for that.
bool becomes_ready(sd_bus* bus, const Deadline& deadline)
{
    while (bus_library()->is_ready(bus) <= 0) {
        const int done = bus_library()->process(bus, nullptr);
        if (done < 0)
            return false;
        const std::uint64_t left = deadline.left();
        if (left == 0 || (done == 0 && bus_library()->wait(bus, left) < 0))
            return false;
    }
    return true;
}

/// The object of an account on the system bus.
class UserObject {
public:
    explicit UserObject(std::uint64_t uid)
    {
        sd_bus* bus = nullptr;
        if (access(bus_socket, F_OK) != 0 || !bus_library() || bus_library()->open_system(&bus) < 0)
            return;
        bus_.reset(bus);
        if (!becomes_ready(bus, deadline_) || !limit_call())
            return;
        sd_bus_message* raw = nullptr;
        bus_library()->call_method(bus, service_name, "/org/freedesktop/Accounts", service_name,
                                   "FindUserById", nullptr, &raw, "x",
                                   static_cast<std::int64_t>(uid));
        const Message answer(raw);
        const char* path = nullptr;
        if (answer && bus_library()->message_read(answer.get(), "o", &path) > 0)
            path_ = path;
    }

    /// Its answer to a method without parameters; empty for none.
    Message call(const char* method) const
    {
        sd_bus_message* raw = nullptr;
        if (!path_.empty() && limit_call())
            bus_library()->call_method(bus_.get(), service_name, path_.c_str(), user_interface,
                                       method, nullptr, &raw, "");
        return Message(raw);
    }

    std::optional<std::int64_t> number(const char* property) const
    {
        std::int64_t number = 0;
        if (path_.empty() || !limit_call() ||
            bus_library()->get_property_trivial(bus_.get(), service_name, path_.c_str(),
                                                user_interface, property, nullptr, 'x',
                                                &number) < 0)
            return std::nullopt;
        return number;
    }

private:
    /// False if the time is over; the bus would take a limit of 0 for its own long one.
    bool limit_call() const
    {
        const std::uint64_t left = deadline_.left();
        return left != 0 && bus_library()->set_method_call_timeout(bus_.get(), left) >= 0;
    }

    Deadline deadline_;
    Bus bus_;
    /// Empty if the service does not know the account.
    std::string path_;
};

std::int64_t today()
{
    using Days = std::chrono::duration<std::int64_t, std::ratio<86400>>;
    return std::chrono::floor<Days>(std::chrono::system_clock::now().time_since_epoch()).count();
}

} // namespace

PasswordPolicy policy_of_ages(std::int64_t last_change, std::int64_t shortest, std::int64_t longest,
                              std::int64_t today)
{
    constexpr std::int64_t no_end = 99999;
    const bool old_enough = shortest <= 0 || last_change <= 0 || today - last_change >= shortest;
    return {.expires = longest >= 0 && longest < no_end, .changeable = old_enough};
}

std::optional<PasswordPolicy> password_policy(std::uint64_t uid)
{
    const Message answer = UserObject(uid).call("GetPasswordExpirationPolicy");
    std::int64_t expiry = 0, last_change = 0, shortest = 0, longest = 0, warning = 0, inactive = 0;
    if (!answer || bus_library()->message_read(answer.get(), "xxxxxx", &expiry, &last_change,
                                               &shortest, &longest, &warning, &inactive) <= 0)
        return std::nullopt;
    return policy_of_ages(last_change, shortest, longest, today());
}

std::optional<std::int64_t> login_time(std::uint64_t uid)
{
    const auto seconds = UserObject(uid).number("LoginTime");
    return seconds && *seconds > 0 ? seconds : std::nullopt;
}

} // namespace ostrelum::linux_platform
