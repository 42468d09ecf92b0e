#include "platform/linux/services/SystemApi.h"

#include "platform/linux/devices/CpuPackages.h"
#include "platform/linux/formats/MouseButtons.h"
#include "platform/linux/services/UserFolders.h"
#include "platform/linux/text/Text.h"
#include "platform/system/Failure.h"
#include "sources/Ascii.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>
#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

namespace ostrelum::linux_platform {

namespace {

constexpr int directory_attribute = 16;

/// Programs that remap keys make devices of their own, with every button there is.
bool made_by_program(const Sysroot& root, const std::string& device)
{
    const std::string target = root.link(device).value_or("");
    return target.find("/virtual/input/") != std::string::npos;
}

std::vector<InputDevice> input_devices(const Sysroot& root)
{
    const std::string folder = "/sys/class/input";
    std::vector<InputDevice> devices;
    for (const std::string& name : root.list(folder)) {
        const std::string device = folder + "/" + name + "/";
        if (!name.starts_with("input") || made_by_program(root, folder + "/" + name))
            continue;
        const auto fact = [&](const char* file) { return root.text(device + file).value_or(""); };
        devices.push_back({fact("capabilities/key"), fact("capabilities/rel"),
                           fact("capabilities/abs"), fact("properties")});
    }
    return devices;
}

} // namespace

LinuxSystemApi::LinuxSystemApi(const std::string& root, Environment environment,
                               std::optional<std::string> user)
    : LinuxSystemApi(Sysroot::find(root), std::move(environment), std::move(user))
{
}

LinuxSystemApi::LinuxSystemApi(std::optional<Sysroot> files, Environment environment,
                               std::optional<std::string> user)
    : files_(std::move(files)), environment_(std::move(environment)), user_(std::move(user)),
      instance_(environment_)
{
}

SystemInfo LinuxSystemApi::GetOstrelum()
{
    const auto online = files_ ? files_->text("/sys/devices/system/cpu/online") : std::nullopt;
    auto count = static_cast<std::uint32_t>(numbers_of_list(online.value_or("")).size());
    // A sandbox may hide the list; the processors of this machine are then asked for directly.
    if (count == 0 && files_ && files_->is_live())
        count = static_cast<std::uint32_t>(std::max(::sysconf(_SC_NPROCESSORS_ONLN), 1L));
    return {std::max(count, 1U)};
}

int LinuxSystemApi::GetSystemMetrics(int index)
{
    return files_ && index == mouse_button_count ? mouse_buttons(input_devices(*files_)) : 0;
}

std::string LinuxSystemApi::Environ(const std::string& name)
{
    const bool is_user = same_ascii_letters(name, "UserName");
    const std::string raw = !is_user ? variable_in_any_case(environment_, name)
                            : user_  ? *user_
                                     : login_name(environment_);
    return text_or_none(raw).value_or("");
}

int LinuxSystemApi::GetAttr(const std::string& path)
{
    std::string slashes = path;
    std::replace(slashes.begin(), slashes.end(), '\\', '/');
    const std::filesystem::path wanted = slashes;
    const auto found = file_in_folder(wanted.parent_path().native(), wanted.filename().native());
    struct stat status = {};
    if (!found || ::stat(found->c_str(), &status) != 0)
        throw Failure("no such file: " + path);
    if (S_ISDIR(status.st_mode))
        return directory_attribute;
    const bool readable = S_ISREG(status.st_mode) && ::access(found->c_str(), R_OK) == 0;
    return readable ? archive_attribute : 0;
}

bool LinuxSystemApi::PrevInstance()
{
    return instance_.another_runs();
}

void LinuxSystemApi::End()
{
#ifdef __SANITIZE_ADDRESS__
    // What an ordinary end would check.
    __lsan_do_leak_check();
#endif
    std::_Exit(0);
}

} // namespace ostrelum::linux_platform
