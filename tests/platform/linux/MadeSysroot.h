#pragma once

#include "platform/linux/LinuxManagementService.h"
#include "tests/platform/linux/TemporaryFolder.h"

#include <string>
#include <vector>

namespace ostrelum::linux_platform {

/// A machine that a test makes of a few files.
class MadeSysroot {
public:
    std::string file(const std::string& name, const std::string& content) const
    {
        return folder_.file(name, content);
    }

    /// A device under /sys/devices with its link in /sys/class, as "input/input3" under
    /// "platform/i8042/serio0", and what stands in its files.
    struct DeviceFile {
        std::string name, content;
    };
    void device(const std::string& parent, const std::string& class_and_name,
                const std::vector<DeviceFile>& files) const
    {
        const std::string place = "devices/" + parent + "/" + class_and_name;
        for (const DeviceFile& each : files)
            folder_.file("sys/" + place + "/" + each.name, each.content + "\n");
        std::filesystem::create_directories(folder_ / ("sys/" + place));
        link("sys/class/" + class_and_name, "../../" + place);
    }

    void link(const std::string& name, const std::string& target) const
    {
        std::filesystem::create_directories(std::filesystem::path(folder_ / name).parent_path());
        std::filesystem::create_symlink(target, folder_ / name);
    }

    /// The objects that a query gives, each as its values with "|" between them.
    std::vector<std::string> rows(const std::string& query, SessionFactsSource session = {}) const
    {
        std::vector<std::string> rows;
        for (const Instance& object :
             make_linux_management_service(folder_ / "", std::move(session))->ExecQuery(query)) {
            std::string row;
            for (const auto& [name, value] : object.properties())
                row += (row.empty() ? "" : "|") + (value.is_null() ? "null" : value.text());
            rows.push_back(row);
        }
        return rows;
    }

private:
    TemporaryFolder folder_;
};

} // namespace ostrelum::linux_platform
