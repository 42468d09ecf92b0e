#include "platform/windows/services/AnsiCodePage.h"
#include "platform/windows/services/Com.h"
#include "platform/windows/services/Regional.h"
#include "platform/windows/services/Registry.h"
#include "platform/windows/services/Shell.h"
#include "platform/windows/services/SystemApi.h"
#include "platform/windows/services/Wide.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace ostrelum::windows_platform {
namespace {

/// A key of this test's own, gone when it ends.
class TestKey {
public:
    explicit TestKey(std::wstring path, HKEY root = HKEY_CURRENT_USER)
        : path_(std::move(path)), root_(root)
    {
        RegDeleteTreeW(root_, path_.c_str());
    }
    ~TestKey() { RegDeleteTreeW(root_, path_.c_str()); }

    void put(const wchar_t* name, DWORD type, const std::string& bytes) const
    {
        RegSetKeyValueW(root_, path_.c_str(), name, type, bytes.data(),
                        static_cast<DWORD>(bytes.size()));
    }
    /// Type of a value below the key; REG_NONE for none.
    DWORD type_of(const std::wstring& folder, const wchar_t* name) const
    {
        DWORD type = REG_NONE;
        RegGetValueW(root_, (path_ + folder).c_str(), name, RRF_RT_ANY, &type, nullptr, nullptr);
        return type;
    }

private:
    std::wstring path_;
    HKEY root_;
};

TEST(WindowsShell, KeepsTextsAndNumbersInTheRegistry)
{
    const Apartment apartment(COINIT_APARTMENTTHREADED);
    const TestKey key(L"Software\\Dervalin\\Test");
    const std::string root = "HKEY_CURRENT_USER\\Software\\Dervalin\\Test\\Deep\\";
    const auto shell = make_shell("WScript.Shell");
    EXPECT_THROW(shell->RegRead(root + "Language"), Failure);
    shell->RegWrite(root + "Language", std::string("Español ✓"), "REG_SZ");
    shell->RegWrite(root + "ColorValue", std::uint32_t{16750080}, "REG_DWORD");
    shell->RegWrite(root + "Highest", std::uint32_t{0xFFFFFFFF}, "REG_DWORD");
    EXPECT_EQ(shell->RegRead(root + "Language"), RegValue("Español ✓"));
    EXPECT_EQ(shell->RegRead(root + "ColorValue"), RegValue(std::uint32_t{16750080}));
    EXPECT_EQ(shell->RegRead(root + "Highest"), RegValue(std::uint32_t{0xFFFFFFFF}));
    EXPECT_EQ(key.type_of(L"\\Deep", L"Language"), DWORD{REG_SZ});
    EXPECT_EQ(key.type_of(L"\\Deep", L"ColorValue"), DWORD{REG_DWORD});
    key.put(L"Bytes", REG_BINARY, "abc");
    EXPECT_THROW(shell->RegRead("HKEY_CURRENT_USER\\Software\\Dervalin\\Test\\Bytes"), Failure);
    EXPECT_THROW(shell->RegWrite("HKEY_NOWHERE\\a\\b", std::string("x"), "REG_SZ"), Failure);
}

TEST(WindowsShell, KnowsTheFoldersThatTheProgramAsksFor)
{
    const Apartment apartment(COINIT_APARTMENTTHREADED);
    const auto shell = make_shell("WScript.Shell");
    WindowsSystemApi system;
    for (const char* name : {"Desktop", "Fonts"})
        EXPECT_EQ(system.GetAttr(shell->SpecialFolders(name)) & FILE_ATTRIBUTE_DIRECTORY, 16)
            << name;
    EXPECT_TRUE(shell->SpecialFolders("Fonts").ends_with("Fonts"));
    EXPECT_THROW(shell->SpecialFolders("Attic"), Failure);
    EXPECT_THROW(make_shell("WScript.Nothing"), Failure);
}

TEST(WindowsRegistry, ReadsBytesOfTheTypeAndLengthAskedFor)
{
    const TestKey key(L"SOFTWARE\\Dervalin Test", HKEY_LOCAL_MACHINE);
    key.put(L"Id", REG_BINARY, std::string("\x01\x02\xFF", 3));
    key.put(L"Text", REG_SZ, "ab");
    WindowsRegistry registry;
    EXPECT_FALSE(registry.RegOpenKeyA(local_machine_root, "SOFTWARE\\Dervalin Nothing"));
    const auto opened = registry.RegOpenKeyA(local_machine_root, "SOFTWARE\\DERVALIN Test");
    ASSERT_TRUE(opened);
    std::array<std::uint8_t, 4> buffer{};
    EXPECT_EQ(registry.RegQueryValueExA(*opened, "Id", binary_type, buffer), 3U);
    EXPECT_EQ(buffer, (std::array<std::uint8_t, 4>{1, 2, 255, 0}));
    EXPECT_FALSE(registry.RegQueryValueExA(*opened, "Id", binary_type, std::span(buffer).first(2)));
    EXPECT_FALSE(registry.RegQueryValueExA(*opened, "Text", binary_type, buffer));
    EXPECT_FALSE(registry.RegQueryValueExA(*opened, "None", binary_type, buffer));
    registry.RegCloseKey(*opened);
}

TEST(WindowsRegional, ShowsWhatTheUserHasSetAtOnce)
{
    WindowsRegional regional;
    const struct {
        const wchar_t* name;
        const wchar_t* date;
        const wchar_t* time;
        const wchar_t* sign;
        std::string expected;
    } cases[] = {
        {L"es-ES", L"dd/MM/yyyy", L"H:mm:ss", L",", "15/03/2012 9:05:07 ,"},
        {L"en-US", L"M/d/yyyy", L"h:mm:ss tt", L".", "3/15/2012 9:05:07 AM ."},
        {L"nl-NL", L"yyyy.MM.dd", L"HH.mm.ss", L"'", "2012.03.15 09.05.07 '"},
    };
    for (const auto& each : cases) {
        SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SSHORTDATE, each.date);
        SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STIMEFORMAT, each.time);
        SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, each.sign);
        EXPECT_EQ(regional.short_date({2012, 3, 15}) + " " + regional.long_time({9, 5, 7}) + " " +
                      regional.decimal_sign(),
                  each.expected);
    }
    for (const Date& none : {Date{2011, 2, 29}, Date{2012, 13, 1}, Date{0, 0, 0}})
        EXPECT_THROW(regional.short_date(none), Failure);
    EXPECT_THROW(regional.long_time({24, 0, 0}), Failure);
    SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SSHORTDATE, L"M/d/yyyy");
    SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STIMEFORMAT, L"h:mm:ss tt");
    SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, L".");
}

TEST(WindowsAnsiCodePage, HasOneQuestionMarkForEachCharacterThatItLacks)
{
    EXPECT_EQ(WindowsAnsiCodePage(1252).encoded("ñ€Ω😀ā→"), "\xF1\x80????");
    EXPECT_EQ(WindowsAnsiCodePage(1253).encoded("Ωñ"), "\xD9?");
    EXPECT_EQ(WindowsAnsiCodePage(932).encoded("あ😀"), "\x82\xA0?");
    EXPECT_EQ(WindowsAnsiCodePage(CP_UTF8).encoded("ñ😀"), "ñ😀");
}

TEST(WindowsSystemApi, TellsOfTheProcessAndItsMachine)
{
    WindowsSystemApi system;
    SYSTEM_INFO info{};
    GetSystemInfo(&info);
    EXPECT_GE(system.GetOstrelum().dwNumberOfProcessors, info.dwNumberOfProcessors);
    SetEnvironmentVariableW(L"USERNAME", L"somebody");
    SetEnvironmentVariableW(L"OstrelumTest", L"Grüße");
    EXPECT_EQ(system.Environ("UserName"), own_account());
    EXPECT_NE(own_account(), "somebody");
    EXPECT_EQ(WindowsSystemApi("eva").Environ("USERNAME"), "eva");
    EXPECT_EQ(system.Environ("OSTRELUMTEST"), "Grüße");
    EXPECT_EQ(system.Environ("OstrelumNothing"), "");
    EXPECT_THROW(system.GetAttr("C:\\nothing here"), Failure);
}

TEST(WindowsSystemApi, FindsAnotherInstanceOfTheUserAlone)
{
    WindowsSystemApi first;
    WindowsSystemApi second;
    EXPECT_FALSE(first.PrevInstance());
    EXPECT_FALSE(first.PrevInstance());
    EXPECT_TRUE(second.PrevInstance());
    EXPECT_TRUE(second.PrevInstance());
}

TEST(Wide, MakesWhatIsNoTextValid)
{
    EXPECT_EQ(narrow(L"a\xD800z"), "a\xEF\xBF\xBDz");
    EXPECT_EQ(narrow(wide("é😀")), "é😀");
    EXPECT_EQ(narrow(wide("a\xFFz")), "a\xEF\xBF\xBDz");
    EXPECT_EQ(wide(""), L"");
}

} // namespace
} // namespace ostrelum::windows_platform
