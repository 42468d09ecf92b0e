#pragma once

#include "platform/windows/services/WmiQuery.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <thread>

namespace ostrelum::windows_platform {

/// How the service is connected, on the thread that asks it.
using WmiConnect = std::function<ComPtr<IWbemServices>()>;

/// A thread of its own that asks the service, since a question to it may never come back. All that
/// it gets from the service lives and ends there.
class WmiThread {
public:
    explicit WmiThread(WmiConnect connect);
    WmiThread(const WmiThread&) = delete;
    WmiThread& operator=(const WmiThread&) = delete;
    /// Lets go of the connection; does not wait for an answer that is still out.
    ~WmiThread();

    /// The answer to a query, or to none, which only connects. While it is out, windows of the
    /// calling thread are painted and nothing else happens in them. Nothing if it does not come
    /// within `patience`: this object then has to go. Throws Failure as run_wmi_query does, and
    /// where no connection can be had.
    std::optional<ResultSet> ask(const std::optional<std::string>& wql,
                                 std::chrono::milliseconds patience);

    /// Whether the last question has been answered; to be asked as long as anybody likes, also when
    /// this object has gone.
    std::function<bool()> whether_answered() const;

private:
    struct Conversation;
    std::shared_ptr<Conversation> conversation_;
    std::thread thread_;
};

} // namespace ostrelum::windows_platform
