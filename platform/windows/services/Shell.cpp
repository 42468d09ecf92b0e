#include "platform/windows/services/Shell.h"

#include "platform/windows/services/Dispatch.h"
#include "platform/windows/services/Wide.h"
#include "sources/Ascii.h"

#include <shlobj.h>

namespace ostrelum::windows_platform {
namespace {

std::string known_folder(const KNOWNFOLDERID& id)
{
    wchar_t* path = nullptr;
    const HRESULT result = SHGetKnownFolderPath(id, KF_FLAG_DEFAULT, nullptr, &path);
    const std::string text = path ? narrow(path) : std::string();
    CoTaskMemFree(path);
    check("SHGetKnownFolderPath", result);
    return text;
}

/// What the shell object's collection of folders has for a name; empty for none.
std::string listed_folder(IDispatch& shell, const std::string& name)
{
    OwnedVariant folders;
    invoke(shell, "SpecialFolders", {}, folders);
    if (folders->vt != VT_DISPATCH || !folders->pdispVal)
        return {};
    OwnedVariant key(name);
    OwnedVariant path;
    invoke_default(*folders->pdispVal, {*key}, path);
    return path->vt == VT_BSTR ? text_of(path->bstrVal) : std::string();
}

void put(OwnedVariant& variant, std::uint32_t number)
{
    // REG_DWORD takes a signed number of the same bits.
    variant->vt = VT_I4;
    variant->lVal = static_cast<LONG>(number);
}

RegValue stored_value(IDispatch& shell, const std::string& name)
{
    OwnedVariant key(name);
    OwnedVariant value;
    invoke(shell, "RegRead", {*key}, value);
    if (value->vt == VT_BSTR)
        return text_of(value->bstrVal);
    if (value->vt == VT_I4)
        return static_cast<std::uint32_t>(value->lVal);
    throw Failure("neither a text nor a number: " + name);
}

bool is_board_name(const std::string& name)
{
    return same_ascii_letters(name,
                              "HKEY_CURRENT_USER\\Software\\Install\\Ostrelum\\Mainboard\\Full");
}

/// Maker and name of the main board as the system took them from the firmware at its start.
std::string board_name(IDispatch& shell)
{
    const std::string firmware = "HKEY_LOCAL_MACHINE\\HARDWARE\\DESCRIPTION\\System\\BIOS\\";
    const RegValue board = stored_value(shell, firmware + "BaseBoardProduct");
    const RegValue maker = stored_value(shell, firmware + "BaseBoardManufacturer");
    return std::get<std::string>(maker) + " " + std::get<std::string>(board);
}

} // namespace

RegValue WindowsShell::RegRead(const std::string& name)
try {
    return stored_value(*shell_.Get(), name);
} catch (const Failure&) {
    // Few machines have the value that somebody may have written there.
    if (!is_board_name(name))
        throw;
    return board_name(*shell_.Get());
}

void WindowsShell::RegWrite(const std::string& name, const RegValue& value, const std::string& type)
{
    OwnedVariant key(name);
    OwnedVariant kind(type);
    OwnedVariant nothing;
    if (const auto* text = std::get_if<std::string>(&value)) {
        OwnedVariant written(*text);
        invoke(*shell_.Get(), "RegWrite", {*key, *written, *kind}, nothing);
        return;
    }
    OwnedVariant written;
    put(written, std::get<std::uint32_t>(value));
    invoke(*shell_.Get(), "RegWrite", {*key, *written, *kind}, nothing);
}

std::string WindowsShell::SpecialFolders(const std::string& name)
{
    try {
        if (const std::string path = listed_folder(*shell_.Get(), name); !path.empty())
            return path;
    } catch (const Failure&) {
        // Asked below.
    }
    if (same_ascii_letters(name, "Fonts"))
        return known_folder(FOLDERID_Fonts);
    if (same_ascii_letters(name, "Desktop"))
        return known_folder(FOLDERID_Desktop);
    throw Failure("no such folder: " + name);
}

std::unique_ptr<Shell> make_shell(const std::string& class_name)
{
    CLSID id{};
    check("CLSIDFromProgID", CLSIDFromProgID(wide(class_name).c_str(), &id));
    ComPtr<IDispatch> shell;
    check("CoCreateInstance",
          CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(shell.GetAddressOf())));
    return std::make_unique<WindowsShell>(std::move(shell));
}

} // namespace ostrelum::windows_platform
