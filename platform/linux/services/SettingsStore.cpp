#include "platform/linux/services/SettingsStore.h"

#include "platform/linux/files/FileReplacement.h"
#include "platform/linux/files/WholeFile.h"
#include "platform/linux/formats/SettingsText.h"

#include <cerrno>
#include <filesystem>
#include <sys/stat.h>

namespace ostrelum::linux_platform {

namespace {

/// Some hundred times what the program writes: a longer file is not its settings.
constexpr std::size_t size_limit = 262144;

SettingName split(const std::string& full_name)
{
    if (const auto name = split_setting_name(full_name))
        return *name;
    throw Failure("no name of a setting: " + full_name);
}

/// The folder and its parents, for the user alone as the base directory specification asks.
void make_folders(const std::filesystem::path& folder)
{
    if (folder.empty() || ::mkdir(folder.c_str(), 0700) == 0 || errno != ENOENT)
        return;
    make_folders(folder.parent_path());
    ::mkdir(folder.c_str(), 0700);
}

} // namespace

RegValue SettingsStore::read(const std::string& full_name) const
{
    const SettingName name = split(full_name);
    const auto value = find_setting(read_whole_file(path_, size_limit).value_or(""), name);
    if (!value)
        throw Failure("no such setting: " + full_name);
    return *value;
}

void SettingsStore::write(const std::string& full_name, const RegValue& value) const
{
    const SettingName name = split(full_name);
    if (path_.empty())
        throw Failure("no folder for settings");
    make_folders(std::filesystem::path(path_).parent_path());
    FileReplacement file(path_);
    const std::string old = read_whole_file(path_, size_limit).value_or("");
    const std::string text = with_setting(old, name, value);
    if (find_setting(text, name) != value || text.size() > size_limit)
        throw Failure("cannot be a setting: " + full_name);
    file.commit(text);
}

} // namespace ostrelum::linux_platform
