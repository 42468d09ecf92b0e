// How long each page takes on Windows, or under Wine: the management service's share, and the
// program's own.
#include "console/ConsoleProgram.h"
#include "console/windows/WindowsHost.h"
#include "frame/MainForm.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <memory>
#include <utility>

using namespace ostrelum;
using namespace ostrelum::console;

namespace {

using Clock = std::chrono::steady_clock;

Clock::duration asked{};
int questions = 0;

class TimedService : public ManagementService {
public:
    explicit TimedService(std::unique_ptr<ManagementService> service) : service_(std::move(service))
    {
    }

    ResultSet ExecQuery(std::string_view wql) override
    {
        // A refused question takes its time, too.
        struct Watch {
            Clock::time_point start = Clock::now();
            ~Watch()
            {
                asked += Clock::now() - start;
                ++questions;
            }
        };
        const Watch watch;
        return service_->ExecQuery(wql);
    }

private:
    std::unique_ptr<ManagementService> service_;
};

class TimedMachine : public HostedMachine {
public:
    explicit TimedMachine(std::unique_ptr<HostedMachine> machine) : machine_(std::move(machine)) {}

    Platform services() override { return machine_->services(); }
    std::unique_ptr<ManagementService> management_service() override
    {
        return std::make_unique<TimedService>(machine_->management_service());
    }
    std::unique_ptr<Shell> shell_over(std::unique_ptr<Shell> stored) override
    {
        return machine_->shell_over(std::move(stored));
    }

private:
    std::unique_ptr<HostedMachine> machine_;
};

double milliseconds(Clock::duration time)
{
    return std::chrono::duration<double, std::milli>(time).count();
}

/// The round of the median whole time: the service's share and the rest.
void time_page(ConsoleProgram& program, int section)
{
    struct Round {
        double whole;
        double service;
        int questions;
        auto operator<=>(const Round&) const = default;
    };
    std::array<Round, 9> rounds{};
    for (Round& round : rounds) {
        asked = {};
        questions = 0;
        const auto start = Clock::now();
        program.page(section);
        round = {milliseconds(Clock::now() - start), milliseconds(asked), questions};
    }
    std::ranges::sort(rounds);
    const Round& median = rounds[rounds.size() / 2];
    std::printf("| %d | %d | %.1f | %.2f |\n", section, median.questions, median.service,
                median.whole - median.service);
}

} // namespace

int main()
{
    WindowsHost host;
    TimedMachine machine(host.open({}));
    ConsoleProgram program(machine, "English");
    std::puts("| page | questions | the service's answers, ms | our own, ms |\n|---|---|---|---|");
    for (int section = 1; section <= section_count; ++section)
        time_page(program, section);
}
