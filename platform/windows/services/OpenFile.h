#pragma once

#include <optional>
#include <string>
#include <utility>

#include <windows.h>

namespace ostrelum::windows_platform {

/// The full path in the form that may be longer than 260 characters; a device's name as it is.
std::wstring long_path(const std::wstring& path);

/// Whether a file can be made beside that one.
bool takes_new_files(const std::wstring& path);

/// A file that is open for writing.
class OpenFile {
public:
    /// Nothing where there is none, or where the user may not write it; GetLastError then tells.
    static std::optional<OpenFile> existing(const std::wstring& path);
    /// Nothing where there is one, or where the folder takes none.
    static std::optional<OpenFile> create_new(const std::wstring& path);

    OpenFile(OpenFile&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
    OpenFile& operator=(OpenFile&& other) noexcept;
    ~OpenFile();

    /// Gives the file these bytes as its whole content, on the disk. Throws Failure if they cannot
    /// be written.
    void write(const std::string& bytes) const;

    /// Whether it is a file that can be replaced under its one name.
    bool has_one_name() const;

    /// Where it really lies, behind links; nothing if the system does not tell.
    std::optional<std::wstring> path() const;

private:
    explicit OpenFile(HANDLE handle) : handle_(handle) {}

    HANDLE handle_;
};

} // namespace ostrelum::windows_platform
