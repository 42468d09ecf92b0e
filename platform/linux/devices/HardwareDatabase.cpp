#include "platform/linux/devices/HardwareDatabase.h"

namespace ostrelum::linux_platform {

HardwareDatabase::HardwareDatabase()
    : udev_(udev_new(), udev_unref),
      database_(udev_ ? udev_hwdb_new(udev_.get()) : nullptr, udev_hwdb_unref)
{
}

std::optional<std::string> HardwareDatabase::text(const std::string& alias, const char* key) const
{
    if (!database_)
        return std::nullopt;
    udev_list_entry* all = udev_hwdb_get_properties_list_entry(database_.get(), alias.c_str(), 0);
    const char* value = udev_list_entry_get_value(udev_list_entry_get_by_name(all, key));
    return value ? std::optional<std::string>(value) : std::nullopt;
}

} // namespace ostrelum::linux_platform
