#include "platform/windows/services/FileWriter.h"

#include "platform/system/Failure.h"
#include "platform/windows/services/OpenFile.h"
#include "platform/windows/services/Wide.h"

#include <optional>

#include <windows.h>

namespace ostrelum::windows_platform {
namespace {

/// A new file beside another one, gone again unless it is taken.
class PartFile {
public:
    /// Throws Failure if the folder takes none.
    explicit PartFile(const std::wstring& target)
    {
        const std::wstring folder = target.substr(0, target.find_last_of(L'\\') + 1);
        for (DWORD number = 0; number < 100 && !file_; ++number) {
            name_ =
                folder + L"ostrelum-" + std::to_wstring(GetCurrentProcessId() + number) + L".part";
            file_ = OpenFile::create_new(name_);
        }
        if (!file_)
            throw Failure("the folder takes no new file");
    }
    PartFile(const PartFile&) = delete;
    PartFile& operator=(const PartFile&) = delete;
    ~PartFile()
    {
        file_.reset();
        DeleteFileW(name_.c_str());
    }

    void write(const std::string& bytes)
    {
        file_->write(bytes);
        file_.reset();
    }

    /// Puts it in the other one's place.
    void take(const std::wstring& target, bool replaces) const
    {
        if (replaces)
            SetFileAttributesW(name_.c_str(), GetFileAttributesW(target.c_str()) &
                                                  ~DWORD{FILE_ATTRIBUTE_READONLY});
        // Rights and attributes that cannot be carried over are no reason to lose the content.
        const BOOL done = replaces
                              ? ReplaceFileW(target.c_str(), name_.c_str(), nullptr,
                                             REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr)
                              : MoveFileExW(name_.c_str(), target.c_str(),
                                            MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
        if (!done)
            throw Failure("it cannot be replaced");
    }

private:
    std::wstring name_;
    std::optional<OpenFile> file_;
};

void write_beside(const std::wstring& target, const std::string& bytes, bool replaces)
{
    PartFile part(target);
    part.write(bytes);
    part.take(target, replaces);
}

} // namespace

void WindowsFileWriter::replace(const std::string& path, const std::string& bytes)
try {
    const std::wstring name = long_path(wide(path));
    auto earlier = OpenFile::existing(name);
    if (!earlier) {
        if (GetLastError() != ERROR_FILE_NOT_FOUND)
            throw Failure("it cannot be opened");
        return write_beside(name, bytes, false);
    }
    // A link stays one: what it leads to is replaced.
    const std::wstring target = earlier->path().value_or(name);
    if (!earlier->has_one_name() || !takes_new_files(target))
        return earlier->write(bytes);
    earlier.reset();
    write_beside(target, bytes, true);
} catch (const Failure& failure) {
    throw Failure(path + ": " + failure.what());
}

} // namespace ostrelum::windows_platform
