#include "platform/system/Failure.h"
#include "platform/windows/services/Com.h"
#include "platform/windows/services/Wide.h"
#include "tests/platform/toolkit/conformance/SampleForm.h"
#include "tests/platform/windows/toolkit/WindowsDriver.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <thread>
#include <vector>

#include <oleacc.h>

/// What the windows of this system do beyond what those of any do.
namespace ostrelum::windows_platform {
namespace {

using namespace conformance;

class WindowsWindow : public testing::Test {
protected:
    WindowsWindow()
    {
        acts.clear();
        driver.toolkit().Show(form);
        calls.clear();
    }
    HWND handle(const auto& control)
    {
        return driver.window(form).window(place_of(form, form.entry_of(&control)));
    }
    RECT place(const auto& control)
    {
        RECT place{};
        GetWindowRect(handle(control), &place);
        MapWindowPoints(nullptr, GetParent(handle(control)), reinterpret_cast<POINT*>(&place), 2);
        return place;
    }
    /// The window comes to a screen of another scale.
    void move_to_screen(int dpi)
    {
        const RECT proposed{10, 20, 600, 600};
        SendMessageW(driver.window(form).handle(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi),
                     reinterpret_cast<LPARAM>(&proposed));
    }

    SampleForm form;
    SampleForm dialog;
    WindowsDriver driver;
};

TEST_F(WindowsWindow, GrowsWithTheScaleOfItsScreen)
{
    for (const int dpi : {144, 120, 288, 96}) {
        move_to_screen(dpi);
        const Scale scale{dpi};
        EXPECT_EQ(driver.size(form), (Point{300 * dpi / 96, 200 * dpi / 96}));
        EXPECT_EQ(place(form.Menu(3)).top, scale.to_screen(90));
        EXPECT_EQ(place(form.Bar).bottom, scale.to_screen(75)) << "its edge meets its neighbour's";
        EXPECT_EQ(place(form.Rule).bottom - place(form.Rule).top,
                  scale.to_screen(41) - scale.to_screen(40));
        LOGFONTW font{};
        GetObjectW(reinterpret_cast<HFONT>(SendMessageW(handle(form.Ok), WM_GETFONT, 0, 0)),
                   sizeof font, &font);
        EXPECT_EQ(font.lfHeight, -std::lround(8.25 * dpi / 72));
        const InkSize text = measure(L"Free text", driver.window(form).font(form.Free.Font));
        EXPECT_GE(width_of(place(form.Free)), text.text.cx) << "no text is cut";
        calls.clear();
        const Point at{scale.to_screen(15), scale.to_screen(96)};
        driver.button_down(form, at, left_button, 0);
        driver.button_up(form, at, left_button, 0);
        EXPECT_EQ(calls.size(), 3U);
        EXPECT_EQ(calls.front().substr(0, 20), "Menu_MouseDown(3) 1 ");
    }
}

/// The names and roles of the alerts that readers were told of.
std::vector<std::pair<std::wstring, LONG>> alerts;

void CALLBACK hear(HWINEVENTHOOK, DWORD, HWND window, LONG object, LONG child, DWORD, DWORD)
{
    ComPtr<IAccessible> told;
    VARIANT self{};
    ASSERT_EQ(AccessibleObjectFromEvent(window, static_cast<DWORD>(object),
                                        static_cast<DWORD>(child), told.GetAddressOf(), &self),
              S_OK);
    BSTR name = nullptr;
    VARIANT role{};
    ASSERT_EQ(told->get_accName(self, &name), S_OK);
    ASSERT_EQ(told->get_accRole(self, &role), S_OK);
    alerts.emplace_back(name, role.lVal);
    SysFreeString(name);
}

TEST_F(WindowsWindow, LetsReadersSayATextAndCallsADialogByItsOwnName)
{
    const HWINEVENTHOOK hook =
        SetWinEventHook(EVENT_SYSTEM_ALERT, EVENT_SYSTEM_ALERT, GetModuleHandleW(nullptr), hear,
                        GetCurrentProcessId(), 0, WINEVENT_INCONTEXT);
    driver.toolkit().announce(form, "Página. Listo");
    UnhookWinEvent(hook);
    EXPECT_EQ(alerts, (std::vector{std::pair{std::wstring(L"P\u00e1gina. Listo"),
                                             LONG{ROLE_SYSTEM_ALERT}}}));

    form.AccessibleName = "Something to fill in";
    ComPtr<IAccessible> window;
    ASSERT_EQ(AccessibleObjectFromWindow(driver.window(form).handle(),
                                         static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                                         reinterpret_cast<void**>(window.GetAddressOf())),
              S_OK);
    VARIANT self{}, role{};
    self.vt = VT_I4;
    EXPECT_EQ(window->get_accRole(self, &role), S_OK);
    EXPECT_EQ(role.lVal, LONG{ROLE_SYSTEM_DIALOG});
}

TEST_F(WindowsWindow, GivesBackAllThatADialogTook)
{
    acts["Clock_Timer"] = [&] { driver.toolkit().Hide(dialog); };
    int after_first = 0;
    for (int times = 0; times < 20; ++times) {
        dialog.Clock.Enabled = true;
        driver.show_modal(dialog);
        driver.let_time_pass(1);
        if (times == 0)
            after_first = open_handles;
        EXPECT_EQ(open_handles, after_first);
    }
    EXPECT_GT(after_first, 0);
}

TEST(WindowsClipboard, TakesATextOfJustItsSizeAndWaitsForOthers)
{
    const auto clipboard = make_windows_clipboard();
    const std::string text = "Español ✓";
    std::thread holder([] {
        if (OpenClipboard(nullptr)) {
            Sleep(60);
            CloseClipboard();
        }
    });
    Sleep(20);
    clipboard->SetText(text);
    holder.join();
    ASSERT_TRUE(OpenClipboard(nullptr));
    const HANDLE data = GetClipboardData(CF_UNICODETEXT);
    EXPECT_EQ(GlobalSize(data), 2 * (wide(text).size() + 1));
    EXPECT_EQ(narrow(static_cast<const wchar_t*>(GlobalLock(data))), text);
    GlobalUnlock(data);
    std::thread([&] {
        EXPECT_THROW(clipboard->Clear(), Failure) << "somebody does not let go";
    }).join();
    CloseClipboard();
    clipboard->Clear();
    EXPECT_FALSE(IsClipboardFormatAvailable(CF_UNICODETEXT));
}

} // namespace
} // namespace ostrelum::windows_platform
