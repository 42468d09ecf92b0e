#include "fuzz/Cleanness.h"
#include "platform/linux/accounts/Accounts.h"
#include "platform/linux/devices/CpuPackages.h"
#include "platform/linux/formats/BuildDate.h"
#include "platform/linux/formats/ConfigText.h"
#include "platform/linux/formats/CpuInfo.h"
#include "platform/linux/formats/MemoryInfo.h"
#include "platform/linux/os/Processes.h"

#include <cstdlib>

namespace {

void check(const std::optional<std::string>& text)
{
    if (text && (text->empty() || !ostrelum::is_clean_line(*text)))
        std::abort();
}

} // namespace

/// Any bytes as the small texts of the kernel and of configuration files: what is read of them is
/// clean, clocks run, days are in the calendar, and a list has no more processors than a machine.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace ostrelum::linux_platform;
    constexpr std::size_t most_cpus = 65536;
    const std::string text(data, data + size);
    for (const char* variable : {"PRETTY_NAME", "ID", "LANG"})
        check(assigned(text, variable));
    check(value_in_section(text, "global", "workgroup"));
    for (const Account& account : parse_passwd(text)) {
        check(account.name);
        if (!account.full_name.empty())
            check(account.full_name);
    }
    const CpuInfo cpuinfo(text);
    const CpuRecord record = cpuinfo.of(0);
    check(record.text({"model name", "Model"}));
    for (const auto& clock : {record.megahertz(), record.rated_megahertz()}) {
        if (clock && *clock <= 0)
            std::abort();
    }
    const auto date = build_date(text);
    if ((date && !date->ok()) || numbers_of_list(text).size() > most_cpus)
        std::abort();
    parse_meminfo(text);
    is_kernel_thread(text);
    return 0;
}
