#include "platform/windows/toolkit/SaveQuestion.h"

#include "platform/windows/services/Wide.h"

#include <algorithm>

namespace ostrelum::windows_platform {
namespace {

struct Words {
    WORD language;
    const wchar_t* exists;
    const wchar_t* question;
};

/// The first are those for all other languages.
constexpr Words words[] = {
    {LANG_ENGLISH, L" already exists.", L"Do you want to replace it?"},
    {LANG_SPANISH, L" ya existe.", L"¿Desea reemplazarlo?"},
    {LANG_DUTCH, L" bestaat al.", L"Wilt u het vervangen?"},
};

/// The buttons below the question have the system's language, so the question has it, too.
const Words& words_of_system()
{
    const WORD language = PRIMARYLANGID(GetUserDefaultUILanguage());
    const auto* found = std::ranges::find(words, language, &Words::language);
    return found == std::end(words) ? words[0] : *found;
}

std::string name_in(const std::string& path)
{
    return path.substr(path.find_last_of("\\/:") + 1);
}

} // namespace

bool may_replace(HWND owner, const std::string& title, const std::string& file)
{
    const Words& said = words_of_system();
    const std::wstring text = wide(name_in(file)) + said.exists + L"\n" + said.question;
    return MessageBoxW(owner, text.c_str(), wide(title).c_str(),
                       MB_YESNO | MB_ICONWARNING | MB_DEFBUTTON2) == IDYES;
}

} // namespace ostrelum::windows_platform
