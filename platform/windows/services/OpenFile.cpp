#include "platform/windows/services/OpenFile.h"

#include "platform/system/Failure.h"

#include <algorithm>

namespace ostrelum::windows_platform {
namespace {

constexpr DWORD shared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
/// So many bytes in one call.
constexpr std::size_t slice = 1U << 20;

} // namespace

std::wstring long_path(const std::wstring& path)
{
    std::wstring full(GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
    const DWORD length =
        GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
    if (length == 0 || length >= full.size())
        throw Failure("no such path");
    full.resize(length);
    if (full.starts_with(L"\\\\?\\") || full.starts_with(L"\\\\.\\"))
        return full;
    if (full.starts_with(L"\\\\"))
        return L"\\\\?\\UNC" + full.substr(1);
    return L"\\\\?\\" + full;
}

bool takes_new_files(const std::wstring& path)
{
    const std::wstring folder = path.substr(0, path.find_last_of(L'\\') + 1);
    const HANDLE handle = CreateFileW(folder.c_str(), FILE_ADD_FILE, shared, nullptr, OPEN_EXISTING,
                                      FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return false;
    CloseHandle(handle);
    return true;
}

std::optional<OpenFile> OpenFile::existing(const std::wstring& path)
{
    const HANDLE handle = CreateFileW(path.c_str(), GENERIC_WRITE, shared, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return std::nullopt;
    return OpenFile(handle);
}

std::optional<OpenFile> OpenFile::create_new(const std::wstring& path)
{
    const HANDLE handle = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return std::nullopt;
    return OpenFile(handle);
}

OpenFile& OpenFile::operator=(OpenFile&& other) noexcept
{
    std::swap(handle_, other.handle_);
    return *this;
}

OpenFile::~OpenFile()
{
    if (handle_)
        CloseHandle(handle_);
}

void OpenFile::write(const std::string& bytes) const
{
    for (std::size_t done = 0; done < bytes.size();) {
        const auto size = static_cast<DWORD>(std::min(slice, bytes.size() - done));
        DWORD written = 0;
        if (!WriteFile(handle_, bytes.data() + done, size, &written, nullptr) || written == 0)
            throw Failure("it cannot be written");
        done += written;
    }
    if (GetFileType(handle_) != FILE_TYPE_DISK)
        return;
    if (!SetEndOfFile(handle_) || !FlushFileBuffers(handle_))
        throw Failure("it cannot be written");
}

bool OpenFile::has_one_name() const
{
    BY_HANDLE_FILE_INFORMATION facts{};
    return GetFileType(handle_) == FILE_TYPE_DISK && GetFileInformationByHandle(handle_, &facts) &&
           facts.nNumberOfLinks == 1;
}

std::optional<std::wstring> OpenFile::path() const
{
    std::wstring path(GetFinalPathNameByHandleW(handle_, nullptr, 0, FILE_NAME_NORMALIZED), L'\0');
    const DWORD length = GetFinalPathNameByHandleW(
        handle_, path.data(), static_cast<DWORD>(path.size()), FILE_NAME_NORMALIZED);
    if (length == 0 || length >= path.size())
        return std::nullopt;
    path.resize(length);
    return path;
}

} // namespace ostrelum::windows_platform
