#include "platform/windows/services/Wide.h"
#include "platform/windows/toolkit/SaveQuestion.h"
#include "platform/windows/toolkit/WindowsBackEnd.h"

#include <algorithm>
#include <vector>

#include <windows.h>

#include <commdlg.h>

namespace ostrelum::windows_platform {
namespace {

/// UTF-16 units of the longest path that Windows has, with its NUL.
constexpr std::size_t longest_path = 32768;

class WindowsSaveDialog : public SaveDialog {
public:
    std::optional<ChosenFile> GetSaveFileNameA(const OpenFileName& request) override;
};

/// The dialog's own question is about the name as it was typed; what is asked about is the file
/// that will be written.
bool may_be_written(HWND owner, const OpenFileName& request, const ChosenFile& chosen)
{
    const std::string file =
        request.target ? request.target(chosen.path, chosen.filter_index) : chosen.path;
    return GetFileAttributesW(wide(file).c_str()) == INVALID_FILE_ATTRIBUTES ||
           may_replace(owner, request.title, file);
}

/// A buffer of the longest path that begins with the name.
std::vector<wchar_t> path_buffer(const std::string& name)
{
    const std::wstring offered = wide(name);
    std::vector<wchar_t> path(longest_path);
    std::copy_n(offered.begin(), std::min(offered.size(), longest_path - 1), path.begin());
    return path;
}

std::optional<ChosenFile> WindowsSaveDialog::GetSaveFileNameA(const OpenFileName& request)
{
    // The list of pairs ends with an empty label.
    const std::wstring filter = wide(request.filter) + L'\0';
    const std::wstring folder = wide(request.initial_dir);
    const std::wstring title = wide(request.title);
    std::vector<wchar_t> path = path_buffer(request.file);
    OPENFILENAMEW record{};
    record.lStructSize = sizeof record;
    record.hwndOwner = GetActiveWindow();
    record.lpstrFilter = filter.c_str();
    record.nFilterIndex = static_cast<DWORD>(request.filter_index);
    record.lpstrFile = path.data();
    record.nMaxFile = static_cast<DWORD>(path.size());
    record.lpstrInitialDir = folder.empty() ? nullptr : folder.c_str();
    record.lpstrTitle = title.c_str();
    record.Flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_PATHMUSTEXIST |
                   OFN_NOTESTFILECREATE;
    while (GetSaveFileNameW(&record)) {
        const ChosenFile chosen{.path = narrow(path.data()),
                                .filter_index = static_cast<int>(record.nFilterIndex)};
        if (may_be_written(record.hwndOwner, request, chosen))
            return chosen;
        // The name stands in the buffer: the dialog comes up again with it.
    }
    return std::nullopt;
}

} // namespace

std::unique_ptr<SaveDialog> make_windows_save_dialog()
{
    return std::make_unique<WindowsSaveDialog>();
}

} // namespace ostrelum::windows_platform
