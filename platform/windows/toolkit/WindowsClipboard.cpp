#include "platform/system/Failure.h"
#include "platform/windows/services/Wide.h"
#include "platform/windows/toolkit/OwnedHandle.h"
#include "platform/windows/toolkit/WindowsBackEnd.h"

#include <cstring>

namespace ostrelum::windows_platform {
namespace {

/// Another program may hold the clipboard, as a rule for some milliseconds.
constexpr int tries = 20;
constexpr DWORD between_tries_ms = 10;

/// The clipboard, from here to the end of the object. Throws Failure if another program does not
/// let go of it.
class OpenClipboard {
public:
    explicit OpenClipboard(HWND owner)
    {
        for (int left = tries; !::OpenClipboard(owner); Sleep(between_tries_ms)) {
            if (--left == 0)
                throw Failure("no clipboard");
        }
    }
    OpenClipboard(const OpenClipboard&) = delete;
    OpenClipboard& operator=(const OpenClipboard&) = delete;
    ~OpenClipboard() { CloseClipboard(); }

    void clear() const
    {
        if (!EmptyClipboard())
            throw Failure("the clipboard cannot be emptied");
    }
};

/// Memory that the clipboard takes over, of just that size: some programs take all of it.
HGLOBAL memory_with(const std::wstring& text)
{
    const SIZE_T size = (text.size() + 1) * sizeof(wchar_t);
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
    void* bytes = memory ? GlobalLock(memory) : nullptr;
    if (!bytes)
        throw Failure("no memory for the clipboard");
    std::memcpy(bytes, text.c_str(), size);
    GlobalUnlock(memory);
    return memory;
}

class WindowsClipboard : public Clipboard {
public:
    // What is copied belongs to a window, which need not be seen.
    WindowsClipboard()
        : owner_(CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                 GetModuleHandleW(nullptr), nullptr))
    {
    }

    void Clear() override { OpenClipboard(owner_.get()).clear(); }
    void SetText(const std::string& text) override
    {
        const HGLOBAL memory = memory_with(wide(text));
        try {
            const OpenClipboard clipboard(owner_.get());
            clipboard.clear();
            if (!SetClipboardData(CF_UNICODETEXT, memory))
                throw Failure("the clipboard takes no text");
        } catch (const Failure&) {
            GlobalFree(memory);
            throw;
        }
    }

private:
    OwnedWindow owner_;
};

} // namespace

std::unique_ptr<Clipboard> make_windows_clipboard()
{
    return std::make_unique<WindowsClipboard>();
}

} // namespace ostrelum::windows_platform
