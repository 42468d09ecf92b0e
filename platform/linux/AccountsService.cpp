#include "platform/linux/AccountsService.h"

#include <chrono>
#include <memory>
#include <string>
#include <systemd/sd-bus.h>
#include <unistd.h>

namespace ostrelum {
namespace {

constexpr const char* BusSocket = "/run/dbus/system_bus_socket";
constexpr const char* Service = "org.freedesktop.Accounts";
constexpr std::uint64_t LongestWait = 500'000;

struct Release {
    void operator()(sd_bus* bus) const { sd_bus_flush_close_unref(bus); }
    void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
};
using Bus = std::unique_ptr<sd_bus, Release>;
using Message = std::unique_ptr<sd_bus_message, Release>;

Bus system_bus()
{
    sd_bus* bus = nullptr;
    if (access(BusSocket, F_OK) != 0 || sd_bus_open_system(&bus) < 0)
        return nullptr;
    sd_bus_set_method_call_timeout(bus, LongestWait);
    return Bus(bus);
}

/// The object of an account; empty if the service does not know it.
std::string object_of(sd_bus* bus, std::uint64_t uid)
{
    sd_bus_message* raw = nullptr;
    sd_bus_call_method(bus, Service, "/org/freedesktop/Accounts", Service, "FindUserById", nullptr,
                       &raw, "x", static_cast<std::int64_t>(uid));
    const Message answer(raw);
    const char* path = nullptr;
    const bool told = answer && sd_bus_message_read(answer.get(), "o", &path) > 0;
    return told ? path : "";
}

std::int64_t today()
{
    using Days = std::chrono::duration<std::int64_t, std::ratio<86400>>;
    return std::chrono::floor<Days>(std::chrono::system_clock::now().time_since_epoch()).count();
}

} // namespace

PasswordPolicy policy_of_ages(std::int64_t last_change, std::int64_t shortest, std::int64_t longest,
                              std::int64_t today)
{
    constexpr std::int64_t NoEnd = 99999;
    const bool old_enough = shortest <= 0 || last_change <= 0 || today - last_change >= shortest;
    return {.expires = longest >= 0 && longest < NoEnd, .changeable = old_enough};
}

std::optional<PasswordPolicy> password_policy(std::uint64_t uid)
{
    const Bus bus = system_bus();
    const std::string object = bus ? object_of(bus.get(), uid) : "";
    if (object.empty())
        return std::nullopt;
    sd_bus_message* raw = nullptr;
    sd_bus_call_method(bus.get(), Service, object.c_str(), "org.freedesktop.Accounts.User",
                       "GetPasswordExpirationPolicy", nullptr, &raw, "");
    const Message answer(raw);
    std::int64_t expiry = 0, last_change = 0, shortest = 0, longest = 0, warning = 0, inactive = 0;
    if (!answer || sd_bus_message_read(answer.get(), "xxxxxx", &expiry, &last_change, &shortest,
                                       &longest, &warning, &inactive) <= 0)
        return std::nullopt;
    return policy_of_ages(last_change, shortest, longest, today());
}

} // namespace ostrelum
