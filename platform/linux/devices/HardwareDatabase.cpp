#include "platform/linux/devices/HardwareDatabase.h"

#include "platform/linux/formats/Placeholder.h"
#include "platform/linux/text/Text.h"

namespace ostrelum::linux_platform {
namespace {

/// Where systemd itself looks, in its order.
constexpr const char* places[] = {
    "/etc/systemd/hwdb/hwdb.bin", "/etc/udev/hwdb.bin",     "/usr/lib/systemd/hwdb/hwdb.bin",
    "/lib/systemd/hwdb/hwdb.bin", "/usr/lib/udev/hwdb.bin", "/lib/udev/hwdb.bin",
};

sd_hwdb* opened(const Sysroot& root)
{
    for (const char* place : places) {
        const Descriptor file = root.open(place);
        const std::string path = "/proc/self/fd/" + std::to_string(file.number());
        sd_hwdb* database = nullptr;
        if (file && sd_hwdb_new_from_path(path.c_str(), &database) >= 0)
            return database;
    }
    return nullptr;
}

} // namespace

HardwareDatabase::HardwareDatabase(const Sysroot& root)
    : root_(root), database_(opened(root), sd_hwdb_unref)
{
}

std::optional<std::string> HardwareDatabase::text(const std::string& alias, const char* key) const
{
    const std::string line = alias + " " + key;
    const char* value = nullptr;
    if (!database_) {
        const std::string answers = root_.read("/.facts/hwdb").value_or("");
        const auto answer = value_behind(answers, line, '=');
        return answer ? meaningful_text(*answer) : std::nullopt;
    }
    if (sd_hwdb_get(database_.get(), alias.c_str(), key, &value) < 0)
        return std::nullopt;
    root_.report_answer("hwdb", line + "=" + value, "");
    return meaningful_text(value);
}

} // namespace ostrelum::linux_platform
