#include "platform/windows/services/WmiService.h"

#include "sources/Ascii.h"

#include <utility>

namespace ostrelum::windows_platform {

WmiService::WmiService(WmiConnect connect, std::chrono::milliseconds patience)
    : connect_(std::move(connect)), patience_(patience)
{
    ask(std::nullopt);
}

ResultSet WmiService::ask(const std::optional<std::string>& wql)
{
    if (!thread_)
        thread_ = std::make_unique<WmiThread>(connect_);
    auto answer = thread_->ask(wql, patience_);
    if (answer)
        return *std::move(answer);
    if (wql)
        out_[*wql] = thread_->whether_answered();
    thread_.reset();
    throw Failure("the management service does not answer");
}

ResultSet WmiService::ExecQuery(std::string_view wql)
{
    const std::string query(wql);
    if (const auto out = out_.find(query); out != out_.end()) {
        if (!out->second())
            throw Failure("the management service has still not answered");
        out_.erase(out);
    }
    return ask(query);
}

std::unique_ptr<ManagementService> make_wmi_service(const std::string& moniker)
{
    constexpr std::string_view scheme = "WINMGMTS:";
    if (!same_ascii_letters(std::string_view(moniker).substr(0, scheme.size()), scheme))
        throw Failure("no such moniker: " + moniker);
    return std::make_unique<WmiService>(
        [name = moniker.substr(scheme.size())] { return connect_to_namespace(name); });
}

} // namespace ostrelum::windows_platform
