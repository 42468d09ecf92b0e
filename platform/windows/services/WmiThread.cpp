#include "platform/windows/services/WmiThread.h"

#include "platform/windows/services/Waiting.h"

#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>
#include <utility>

namespace ostrelum::windows_platform {

/// What both threads know.
struct WmiThread::Conversation {
    struct Answer {
        ResultSet objects;
        /// Why there are none.
        std::optional<std::string> failure;
    };

    Conversation() : answered(CreateEventW(nullptr, FALSE, FALSE, nullptr))
    {
        if (!answered)
            throw Failure("CreateEvent");
    }
    Conversation(const Conversation&) = delete;
    Conversation& operator=(const Conversation&) = delete;
    ~Conversation() { CloseHandle(answered); }

    /// Waits for a question and takes it; false when there will be none.
    bool take(std::optional<std::string>& taken)
    {
        std::unique_lock lock(guard);
        asked.wait(lock, [&] { return waiting || over; });
        taken = question;
        return !over;
    }

    void give(Answer given)
    {
        const std::scoped_lock lock(guard);
        answer = std::move(given);
        waiting = false;
        SetEvent(answered);
    }

    std::mutex guard;
    std::condition_variable asked;
    std::optional<std::string> question;
    bool waiting = false;
    bool over = false;
    Answer answer;
    const HANDLE answered;
};

namespace {

/// The thread's side of the connection.
class Client {
public:
    explicit Client(WmiConnect connect) : connect_(std::move(connect)) {}

    ResultSet answer_to(const std::optional<std::string>& wql)
    {
        if (!apartment_)
            apartment_.emplace(COINIT_MULTITHREADED);
        const bool kept = service_;
        if (!kept)
            service_ = connect_();
        if (!wql)
            return {};
        try {
            return run_wmi_query(*service_.Get(), *wql);
        } catch (const ServiceGone&) {
            service_.Reset();
            if (!kept)
                throw;
        }
        // It may have been started again since the last question.
        return answer_to(wql);
    }

private:
    WmiConnect connect_;
    std::optional<Apartment> apartment_;
    /// Released before the apartment ends.
    ComPtr<IWbemServices> service_;
};

} // namespace

WmiThread::WmiThread(WmiConnect connect) : conversation_(std::make_shared<Conversation>())
{
    thread_ = std::thread([talk = conversation_, connect = std::move(connect)] {
        Client client(connect);
        std::optional<std::string> question;
        while (talk->take(question)) {
            try {
                talk->give({client.answer_to(question), {}});
            } catch (const std::exception& failure) {
                talk->give({{}, failure.what()});
            }
        }
    });
}

WmiThread::~WmiThread()
{
    const bool idle = whether_answered()();
    {
        const std::scoped_lock lock(conversation_->guard);
        conversation_->over = true;
        conversation_->asked.notify_one();
    }
    if (idle)
        thread_.join();
    else
        thread_.detach();
}

std::optional<ResultSet> WmiThread::ask(const std::optional<std::string>& wql,
                                        std::chrono::milliseconds patience)
{
    {
        const std::scoped_lock lock(conversation_->guard);
        conversation_->question = wql;
        conversation_->waiting = true;
        conversation_->asked.notify_one();
    }
    if (!wait_and_paint(conversation_->answered, patience))
        return std::nullopt;
    const std::scoped_lock lock(conversation_->guard);
    if (conversation_->answer.failure)
        throw Failure(*conversation_->answer.failure);
    return std::exchange(conversation_->answer.objects, {});
}

std::function<bool()> WmiThread::whether_answered() const
{
    return [talk = conversation_] {
        const std::scoped_lock lock(talk->guard);
        return !talk->waiting;
    };
}

} // namespace ostrelum::windows_platform
