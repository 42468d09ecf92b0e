#pragma once

#include <utility>

#include <windows.h>

namespace ostrelum::windows_platform {

/// How many drawing objects, cursors and windows the owners below hold at the moment. The system's
/// own count is not told everywhere.
inline int open_handles = 0;

/// A handle that is given back at the end of its owner.
template <class Handle, class Release>
class OwnedHandle {
public:
    OwnedHandle() = default;
    explicit OwnedHandle(Handle handle) : handle_(handle) { open_handles += handle_ ? 1 : 0; }
    OwnedHandle(OwnedHandle&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
    OwnedHandle& operator=(OwnedHandle&& other) noexcept
    {
        std::swap(handle_, other.handle_);
        return *this;
    }
    ~OwnedHandle()
    {
        if (!handle_)
            return;
        Release()(handle_);
        --open_handles;
    }

    Handle get() const { return handle_; }
    explicit operator bool() const { return handle_ != nullptr; }

private:
    Handle handle_ = nullptr;
};

struct ReleaseDrawing {
    void operator()(HGDIOBJ object) const { DeleteObject(object); }
};
struct ReleaseIcon {
    void operator()(HICON icon) const { DestroyIcon(icon); }
};
struct ReleaseMenu {
    void operator()(HMENU menu) const { DestroyMenu(menu); }
};
struct ReleaseWindow {
    void operator()(HWND window) const { DestroyWindow(window); }
};

using OwnedBitmap = OwnedHandle<HBITMAP, ReleaseDrawing>;
using OwnedFont = OwnedHandle<HFONT, ReleaseDrawing>;
using OwnedIcon = OwnedHandle<HICON, ReleaseIcon>;
using OwnedMenu = OwnedHandle<HMENU, ReleaseMenu>;
using OwnedWindow = OwnedHandle<HWND, ReleaseWindow>;

} // namespace ostrelum::windows_platform
