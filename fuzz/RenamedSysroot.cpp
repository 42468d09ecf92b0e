#include "fuzz/RenamedSysroot.h"

#include <algorithm>
#include <array>
#include <sstream>

namespace ostrelum {
namespace {

namespace fs = std::filesystem;

/// Files of sysfs that hold nothing but a name.
constexpr std::array<std::string_view, 15> name_files{
    "name",         "model",      "vendor",      "product",      "manufacturer",
    "model_name",   "chip_name",  "vendor_name", "sys_vendor",   "product_name",
    "board_vendor", "board_name", "bios_vendor", "bios_version", "hostname"};

/// Keys of names in the files of udev, the system and the processors.
constexpr std::array<std::string_view, 9> name_keys{
    "E:ID_MODEL", "E:ID_VENDOR", "E:ID_FS_LABEL", "E:ID_SERIAL", "E:MEMORY_DEVICE_",
    "E:ID_BOARD", "PRETTY_NAME", "model name",    "NAME"};

bool holds_lines(const std::string& path)
{
    return path.find("/run/udev/data/") != path.npos || path.ends_with("os-release") ||
           path.ends_with("/cpuinfo") || path.ends_with("/.facts/hwdb");
}

/// A number for the kernel's "vendor" and "model" is no name.
bool is_name_file(const std::string& path, const std::string& content)
{
    const std::string file = path.substr(path.rfind('/') + 1);
    return std::ranges::find(name_files, file) != name_files.end() && !content.starts_with("0x");
}

/// Each byte as so many digits behind a mark.
std::string escaped(const std::string& name, const char* mark, unsigned base, unsigned count)
{
    std::string text;
    for (const char c : name) {
        std::string digits(count, '0');
        unsigned rest = static_cast<unsigned char>(c);
        for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit, rest /= base)
            *digit = "0123456789abcdef"[rest % base];
        text += mark + digits;
    }
    return text;
}

std::string renamed_line(const std::string& line, const std::string& name)
{
    const auto sign = line.find_first_of(line.starts_with("model") ? ":" : "=");
    const auto begins = [&](std::string_view key) { return line.starts_with(key); };
    // The hardware database's keys stand behind the devices that they are of.
    const bool named =
        std::ranges::any_of(name_keys, begins) || line.find("_FROM_DATABASE=") != line.npos;
    if (sign == line.npos || !named || line.find_first_not_of("0123456789", sign + 1) == line.npos)
        return line;
    const std::string key = line.substr(0, sign);
    return key + line[sign] + (key.ends_with("_ENC") ? escaped(name, "\\x", 16, 2) : name);
}

std::string renamed_lines(const std::string& content, const std::string& name)
{
    std::string text;
    std::istringstream lines(content);
    for (std::string line; std::getline(lines, line);)
        text += renamed_line(line, name) + "\n";
    return text;
}

std::string renamed(const std::string& path, const std::string& content, const std::string& name)
{
    if (path.ends_with("/mountinfo"))
        return content + "990 1 8:990 / /media/" + escaped(name, "\\", 8, 3) +
               " rw - vfat /dev/sdx1 rw\n";
    if (path.ends_with("/passwd"))
        return "eva:x:1000:1000:" + name + ":/home/eva:/bin/sh\n" + content;
    return holds_lines(path) ? renamed_lines(content, name) : name + "\n";
}

} // namespace

RenamedSysroot::RenamedSysroot(const std::string& recorded)
{
    fs::copy(recorded, root(), fs::copy_options::recursive | fs::copy_options::copy_symlinks);
    for (const auto& entry : fs::recursive_directory_iterator(root())) {
        const std::string path = entry.path();
        if (entry.is_symlink() || !entry.is_regular_file())
            continue;
        const std::string content = content_of(path);
        if (is_name_file(path, content) || holds_lines(path) || path.ends_with("/mountinfo") ||
            path.ends_with("/passwd"))
            files_.push_back({path, content});
    }
}

void RenamedSysroot::rename_all(const std::string& name) const
{
    for (const File& file : files_) {
        // A file system may wait for the disk when a file is made empty, but not for a new one.
        fs::remove(file.path);
        std::ofstream(file.path, std::ios::binary) << renamed(file.path, file.content, name);
    }
}

} // namespace ostrelum
