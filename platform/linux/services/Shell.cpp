#include "platform/linux/services/Shell.h"

#include "platform/linux/services/UserFolders.h"
#include "sources/Ascii.h"

#include <charconv>

namespace ostrelum::linux_platform {

namespace {

std::string settings_path(const Environment& environment)
{
    const std::string folder = base_folder(environment, "XDG_CONFIG_HOME", ".config");
    return folder.empty() ? "" : folder + "/dervalin-ostrelum/settings";
}

std::string as_text(const RegValue& value)
{
    if (const auto* number = std::get_if<std::uint32_t>(&value))
        return std::to_string(*number);
    return std::get<std::string>(value);
}

std::uint32_t as_number(const RegValue& value)
{
    if (const auto* number = std::get_if<std::uint32_t>(&value))
        return *number;
    const std::string& text = std::get<std::string>(value);
    std::uint32_t number = 0;
    const auto [rest, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || rest != text.data() + text.size())
        throw Failure("no 32-bit number: " + text);
    return number;
}

} // namespace

LinuxShell::LinuxShell(Environment environment)
    : environment_(std::move(environment)), store_(settings_path(environment_))
{
}

RegValue LinuxShell::RegRead(const std::string& name)
{
    return store_.read(name);
}

void LinuxShell::RegWrite(const std::string& name, const RegValue& value, const std::string& type)
{
    if (type == "REG_SZ")
        store_.write(name, as_text(value));
    else if (type == "REG_DWORD")
        store_.write(name, as_number(value));
    else
        throw Failure("unknown type of a setting: " + type);
}

std::string LinuxShell::SpecialFolders(const std::string& name)
{
    if (same_ascii_letters(name, "Fonts")) {
        const auto places = font_places(environment_);
        return segoe_folder(places).value_or(places.front());
    }
    const auto desktop =
        same_ascii_letters(name, "Desktop") ? desktop_folder(environment_) : std::nullopt;
    if (!desktop)
        throw Failure("no such folder: " + name);
    return *desktop;
}

} // namespace ostrelum::linux_platform
