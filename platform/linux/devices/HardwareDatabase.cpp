#include "platform/linux/devices/HardwareDatabase.h"

namespace ostrelum::linux_platform {
namespace {

sd_hwdb* opened()
{
    sd_hwdb* database = nullptr;
    return sd_hwdb_new(&database) >= 0 ? database : nullptr;
}

} // namespace

HardwareDatabase::HardwareDatabase() : database_(opened(), sd_hwdb_unref) {}

std::optional<std::string> HardwareDatabase::text(const std::string& alias, const char* key) const
{
    const char* value = nullptr;
    if (!database_ || sd_hwdb_get(database_.get(), alias.c_str(), key, &value) < 0)
        return std::nullopt;
    return value;
}

} // namespace ostrelum::linux_platform
