#include "platform/windows/services/WmiService.h"

#include "tests/platform/windows/FakeWmi.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <future>
#include <memory>
#include <string>

namespace ostrelum::windows_platform {
namespace {

using namespace std::chrono_literals;

constexpr auto invalid_class = static_cast<HRESULT>(WBEM_E_INVALID_CLASS);
constexpr auto invalid_query = static_cast<HRESULT>(WBEM_E_INVALID_QUERY);
const HRESULT gone = HRESULT_FROM_WIN32(RPC_S_SERVER_UNAVAILABLE);

FakeObject named(const std::string& name)
{
    return {{"Name", CIM_STRING, text_variant(name)}};
}

/// Each connection gets the next of these lists of answers, the last for ever.
WmiConnect connections(std::vector<std::vector<FakeAnswer>> services)
{
    // Each of the service's threads has a copy.
    const auto at = std::make_shared<std::atomic<std::size_t>>(0);
    return [services = std::move(services), at] {
        return make_fake_service(services[std::min((*at)++, services.size() - 1)]);
    };
}

TEST(WmiService, TakesARefusalWhereverItComes)
{
    WmiService service(connections({{{.exec = invalid_query},
                                     {.end = invalid_class},
                                     {.objects = {named("first")}, .end = gone},
                                     {}}}));
    EXPECT_THROW(service.ExecQuery("Selct"), Failure);
    EXPECT_THROW(service.ExecQuery("Select * from Win32_Nothing"), Failure);
    // What came before the walk broke off is there, for whoever wants the first alone.
    const ResultSet cut = service.ExecQuery("Select Name from Win32_Processor");
    ASSERT_EQ(cut.size(), 1U);
    EXPECT_EQ(cut[0]["name"].text(), "first");
    EXPECT_TRUE(service.ExecQuery("Select Name from Win32_Battery").empty());
}

TEST(WmiService, LeavesAPropertyThatCannotBeHadToWhoReadsIt)
{
    FakeObject object = named("disk");
    object.push_back({"Size", CIM_UINT64, text_variant("500107862016")});
    object.push_back({"FreeSpace", CIM_UINT64});
    object.push_back({"Lost", CIM_STRING, text_variant("x"), E_FAIL});
    object.push_back({"Embedded", CIM_OBJECT, [](VARIANT& variant) {
                          variant.vt = VT_UNKNOWN;
                          variant.punkVal = nullptr;
                      }});
    WmiService service(connections({{{.objects = {object}}}}));
    const ResultSet result = service.ExecQuery("Select * from Win32_LogicalDisk");
    ASSERT_EQ(result.size(), 1U);
    EXPECT_EQ(result[0]["Size"].number(), 500107862016.0);
    EXPECT_TRUE(result[0]["FreeSpace"].is_null());
    EXPECT_THROW(result[0]["Lost"], Failure);
    EXPECT_THROW(result[0]["Embedded"], Failure);
    EXPECT_EQ(result[0].properties().size(), 3U);
}

TEST(WmiService, ConnectsAgainWhereTheServiceHasEndedMeanwhile)
{
    WmiService service(connections(
        {{{.objects = {named("before")}}, {.exec = gone}}, {{.objects = {named("after")}}}}));
    EXPECT_EQ(service.ExecQuery("Select Name from Win32_BIOS")[0]["Name"].text(), "before");
    EXPECT_EQ(service.ExecQuery("Select Name from Win32_BIOS")[0]["Name"].text(), "after");

    WmiService ended(connections({{{.end = gone}}}));
    EXPECT_THROW(ended.ExecQuery("Select Name from Win32_BIOS"), Failure);
    EXPECT_THROW(WmiService([]() -> ComPtr<IWbemServices> { throw Failure("no service"); }),
                 Failure);
}

TEST(WmiService, GivesUpAQueryThatIsNotAnswered)
{
    std::promise<void> release;
    const auto released = release.get_future().share();
    WmiService service(
        connections({{{.objects = {named("late")}, .meanwhile = [=] { released.wait(); }}},
                     {{.objects = {named("other")}}}}),
        2s);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_THROW(service.ExecQuery("Select Name from Win32_LogicalDisk"), Failure);
    EXPECT_GE(std::chrono::steady_clock::now() - start, 1900ms);
    // The next question does not wait behind it, and the same one is not asked a second time.
    EXPECT_EQ(service.ExecQuery("Select Name from Win32_BIOS")[0]["Name"].text(), "other");
    EXPECT_THROW(service.ExecQuery("Select Name from Win32_LogicalDisk"), Failure);
    release.set_value();
    while (true) {
        try {
            EXPECT_EQ(service.ExecQuery("Select Name from Win32_LogicalDisk")[0]["Name"].text(),
                      "other");
            break;
        } catch (const Failure&) {
            Sleep(10);
        }
    }
}

TEST(WmiService, PaintsWindowsWhileItWaitsAndDoesNothingElseInThem)
{
    static int painted = 0;
    static int clicked = 0;
    const WNDCLASSW kind{.lpfnWndProc =
                             [](HWND window, UINT message, WPARAM word, LPARAM number) {
                                 painted += message == WM_PAINT;
                                 clicked += message == WM_LBUTTONDOWN;
                                 return DefWindowProcW(window, message, word, number);
                             },
                         .lpszClassName = L"painted while waiting"};
    RegisterClassW(&kind);
    const HWND window = CreateWindowExW(0, kind.lpszClassName, L"", WS_POPUP | WS_VISIBLE, 0, 0, 50,
                                        50, nullptr, nullptr, nullptr, nullptr);
    ASSERT_TRUE(window);
    WmiService service(connections({{{.meanwhile = [=] {
        PostMessageW(window, WM_LBUTTONDOWN, 0, 0);
        InvalidateRect(window, nullptr, FALSE);
        Sleep(300);
    }}}}));
    UpdateWindow(window);
    painted = clicked = 0;
    service.ExecQuery("Select Name from Win32_BIOS");
    EXPECT_GT(painted, 0);
    EXPECT_EQ(clicked, 0);
    DestroyWindow(window);
}

TEST(WmiService, ReleasesAllBeforeItsThreadEnds)
{
    // A thread that was given up releases its own a moment after its answer.
    for (int rounds = 0; fakes_alive() > 0 && rounds < 500; ++rounds)
        Sleep(10);
    ASSERT_EQ(fakes_alive(), 0);
    {
        WmiService service(connections({{{.objects = {named("a"), named("b")}}}}));
        service.ExecQuery("Select Name from Win32_BIOS");
        EXPECT_GT(fakes_alive(), 0);
    }
    EXPECT_EQ(fakes_alive(), 0);
}

} // namespace
} // namespace ostrelum::windows_platform
