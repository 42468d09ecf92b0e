#include "platform/windows/services/Registry.h"

#include "platform/windows/services/Wide.h"

#include <windows.h>

namespace ostrelum::windows_platform {
namespace {

/// A predefined root is a negative 32-bit number that stands for a handle.
HKEY handle_of(std::uint32_t root)
{
    return reinterpret_cast<HKEY>(static_cast<LONG_PTR>(static_cast<LONG>(root)));
}

HKEY handle_of(Registry::Key key)
{
    return reinterpret_cast<HKEY>(key);
}

} // namespace

std::optional<Registry::Key> WindowsRegistry::RegOpenKeyA(std::uint32_t root,
                                                          const std::string& path)
{
    HKEY opened = nullptr;
    if (RegOpenKeyExW(handle_of(root), wide(path).c_str(), 0, KEY_READ | KEY_WOW64_64KEY,
                      &opened) != ERROR_SUCCESS)
        return std::nullopt;
    return reinterpret_cast<Key>(opened);
}

std::optional<std::size_t> WindowsRegistry::RegQueryValueExA(Key key, const std::string& name,
                                                             std::uint32_t type,
                                                             std::span<std::uint8_t> buffer)
{
    DWORD found = REG_NONE;
    auto size = static_cast<DWORD>(buffer.size());
    if (RegQueryValueExW(handle_of(key), wide(name).c_str(), nullptr, &found, buffer.data(),
                         &size) != ERROR_SUCCESS ||
        found != type)
        return std::nullopt;
    return size;
}

void WindowsRegistry::RegCloseKey(Key key)
{
    ::RegCloseKey(handle_of(key));
}

} // namespace ostrelum::windows_platform
