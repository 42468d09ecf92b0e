#include "platform/linux/recording/Recording.h"

#include "platform/system/Failure.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace ostrelum::linux_platform {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(const fs::path& path, int error)
{
    throw Failure(path.string() + ": " + std::generic_category().message(error));
}

/// The folder without a slash at its end, which would hide its name.
fs::path named(const std::string& folder)
{
    std::error_code error;
    const fs::path path = fs::absolute(folder, error).lexically_normal();
    // In a folder that has been deleted.
    if (error)
        fail(folder, error.value());
    return path.has_filename() ? path : path.parent_path();
}

/// A temporary folder beside the wanted one. It is removed with its content, unless it has been
/// renamed to the wanted one.
class PartFolder {
public:
    explicit PartFolder(const fs::path& wanted)
    {
        std::string pattern = wanted.parent_path() / ("." + wanted.filename().string() + ".XXXXXX");
        if (::mkdtemp(pattern.data()) == nullptr)
            fail(wanted, errno);
        path_ = pattern;
    }
    PartFolder(const PartFolder&) = delete;
    PartFolder& operator=(const PartFolder&) = delete;
    ~PartFolder()
    {
        try {
            fs::remove_all(path_);
        } catch (const std::exception&) {
            // Without the memory for it there is nothing else to be done.
        }
    }

    fs::path operator/(const std::string& path) const { return path_ / path.substr(1); }
    void become(const fs::path& wanted) const { fs::rename(path_, wanted); }

private:
    fs::path path_;
};

void write_bytes(const fs::path& path, std::uint64_t at, const std::string& bytes)
{
    // Opened for both, a file keeps what it has; it must then be there.
    if (!fs::exists(path) && !std::ofstream(path, std::ios::binary))
        fail(path, errno);
    std::fstream file(path, std::ios::binary | std::ios::in | std::ios::out);
    file.seekp(static_cast<std::streamoff>(at));
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file)
        fail(path, errno);
}

void write_content(const Recording& recording, const PartFolder& part)
{
    for (const auto& [path, place] : recording.places) {
        const bool folder = place.kind == PlaceKind::Folder || place.kind == PlaceKind::Unreadable;
        fs::create_directories(folder ? part / path : (part / path).parent_path());
    }
    for (const auto& [path, place] : recording.places) {
        const bool file = place.kind == PlaceKind::File;
        if (file || (place.kind == PlaceKind::Name && !fs::exists(part / path)))
            write_bytes(part / path, 0, place.content);
    }
    for (const auto& [where, bytes] : recording.pieces) {
        fs::create_directories((part / where.first).parent_path());
        write_bytes(part / where.first, where.second, bytes);
    }
    // Last, so that nothing is written through one.
    for (const auto& [path, place] : recording.places) {
        if (place.kind == PlaceKind::Link)
            fs::create_symlink(place.content, part / path);
    }
}

void write_answers(const Recording& recording, const PartFolder& part)
{
    fs::create_directories(part / "/.facts");
    for (const auto& [list, values] : recording.answers) {
        std::string lines;
        for (const auto& [key, value] : values)
            lines += key + (value.empty() ? "" : " " + value) + "\n";
        write_bytes(part / ("/.facts/" + list), 0, lines);
    }
}

} // namespace

void check_unused(const std::string& folder)
{
    std::error_code error;
    const fs::path wanted = named(folder);
    const fs::file_status status = fs::symlink_status(wanted, error);
    if (fs::exists(status) && (!fs::is_directory(status) || !fs::is_empty(wanted, error)))
        throw Failure(folder + ": is there already, and not an empty folder");
}

void write_recording(const Recording& recording, const std::string& folder)
{
    try {
        const PartFolder part(named(folder));
        write_content(recording, part);
        write_answers(recording, part);
        part.become(named(folder));
    } catch (const fs::filesystem_error& error) {
        throw Failure(folder + ": " + error.code().message());
    }
}

} // namespace ostrelum::linux_platform
