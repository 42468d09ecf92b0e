#include "fuzz/Target.h"
#include "platform/linux/devices/MemoryDevices.h"
#include "platform/linux/formats/UdevRecord.h"

/// Any bytes as udev's record of a device: its texts are clean, and it has no more memory
/// modules than a table can have.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace ostrelum;
    using namespace ostrelum::linux_platform;
    const UdevRecord record(std::string(data, data + size));
    for (const char* key : {"ID_MODEL", "ID_MODEL_ENC", "ID_FS_LABEL_ENC", "ID_FS_UUID", ""}) {
        const auto text = record.text(key);
        if (text && (text->empty() || text->size() > 3 * size || !is_clean_line(*text)))
            std::abort();
    }
    for (const MemoryDevice& device : published_memory(record)) {
        if (device.total_width && (*device.total_width <= 0 || *device.total_width >= 0xFFFF))
            std::abort();
        if (device.locator && !is_clean_line(*device.locator))
            std::abort();
    }
    return 0;
}
