#include "fuzz/Target.h"
#include "platform/linux/formats/BuildDate.h"
#include "platform/linux/formats/ConfigText.h"
#include "platform/linux/formats/MemoryInfo.h"
#include "platform/linux/os/KernelRelease.h"
#include "platform/linux/os/Processes.h"

/// Any bytes as the small texts of the kernel and of configuration files: what is read of them is
/// clean, and days are in the calendar.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace ostrelum;
    using namespace ostrelum::linux_platform;
    const std::string text(data, data + size);
    for (const char* variable : {"PRETTY_NAME", "ID", "LANG"})
        require_clean(assigned(text, variable));
    require_clean(value_in_section(text, "global", "workgroup"));
    const auto date = build_date(text);
    require(!date || date->ok());
    require_clean(kernel_version_text(text));
    parse_meminfo(text);
    is_kernel_thread(text);
    return 0;
}
