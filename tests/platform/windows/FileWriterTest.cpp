#include "platform/windows/services/FileWriter.h"

#include "platform/system/Failure.h"
#include "platform/windows/services/OpenFile.h"
#include "platform/windows/services/Wide.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <system_error>
#include <vector>

namespace ostrelum::windows_platform {
namespace {

namespace fs = std::filesystem;

class WindowsFileWriterTest : public testing::Test {
protected:
    WindowsFileWriterTest()
        : folder_(fs::temp_directory_path() / ("ostrelum-" + std::to_string(GetTickCount64())))
    {
        fs::create_directories(folder_);
    }
    ~WindowsFileWriterTest() override
    {
        std::error_code ignored;
        fs::remove_all(folder_, ignored);
    }

    std::string path(const std::string& name) const
    {
        return narrow(folder_.wstring()) + "\\" + name;
    }

    void put(const std::string& name, const std::string& bytes) const
    {
        std::ofstream(fs::path(wide(path(name))), std::ios::binary) << bytes;
    }
    std::string content(const std::string& name) const
    {
        std::ifstream file(fs::path(wide(path(name))), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    /// The names of the files that there are, in order.
    std::string files() const
    {
        std::set<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder_))
            names.insert(narrow(entry.path().filename().wstring()));
        std::string list;
        for (const std::string& name : names)
            list += (list.empty() ? "" : "|") + name;
        return list;
    }

    fs::path folder_;
    WindowsFileWriter writer_;
};

TEST_F(WindowsFileWriterTest, MakesAndReplacesFiles)
{
    for (const char* name : {"plain.txt", "Übersicht ✓ 😀.htm", "no extension"}) {
        writer_.replace(path(name), "longer than what follows");
        EXPECT_EQ(content(name), "longer than what follows") << name;
        writer_.replace(path(name), "a\r\nb");
        EXPECT_EQ(content(name), "a\r\nb") << name;
    }
    EXPECT_EQ(files(), "no extension|plain.txt|Übersicht ✓ 😀.htm");
}

TEST_F(WindowsFileWriterTest, WritesPathsOfAnyLength)
{
    // Not by std::filesystem, which does not go so deep.
    std::vector<std::wstring> made;
    std::string deep = path(std::string(100, 'a'));
    for (int depth = 0; depth < 3; ++depth, deep += "\\" + std::string(100, 'b')) {
        made.push_back(long_path(wide(deep)));
        ASSERT_TRUE(CreateDirectoryW(made.back().c_str(), nullptr));
    }
    const std::string name = narrow(made.back()).substr(4) + "\\" + std::string(200, 'd') + ".txt";
    writer_.replace(name, "one");
    writer_.replace(name, "two!");
    WIN32_FILE_ATTRIBUTE_DATA facts{};
    EXPECT_TRUE(GetFileAttributesExW(long_path(wide(name)).c_str(), GetFileExInfoStandard, &facts));
    EXPECT_EQ(facts.nFileSizeLow, 4U);
    EXPECT_TRUE(DeleteFileW(long_path(wide(name)).c_str()));
    for (; !made.empty(); made.pop_back())
        EXPECT_TRUE(RemoveDirectoryW(made.back().c_str()));
}

TEST_F(WindowsFileWriterTest, KeepsWhatTheFileHad)
{
    put("hidden.txt", "before");
    SetFileAttributesW(wide(path("hidden.txt")).c_str(), FILE_ATTRIBUTE_HIDDEN);
    const DWORD attributes = GetFileAttributesW(wide(path("hidden.txt")).c_str());
    writer_.replace(path("hidden.txt"), "after");
    EXPECT_EQ(content("hidden.txt"), "after");
    EXPECT_EQ(GetFileAttributesW(wide(path("hidden.txt")).c_str()), attributes);

    put("first.txt", "before");
    ASSERT_TRUE(CreateHardLinkW(wide(path("second.txt")).c_str(), wide(path("first.txt")).c_str(),
                                nullptr));
    writer_.replace(path("first.txt"), "after");
    EXPECT_EQ(content("second.txt"), "after");
}

TEST_F(WindowsFileWriterTest, RefusesWhatCannotBeWrittenAndLeavesItAsItWas)
{
    put("read only.txt", "before");
    SetFileAttributesW(wide(path("read only.txt")).c_str(), FILE_ATTRIBUTE_READONLY);
    put("open.txt", "before");
    const HANDLE open = CreateFileW(wide(path("open.txt")).c_str(), GENERIC_READ, FILE_SHARE_READ,
                                    nullptr, OPEN_EXISTING, 0, nullptr);
    for (const char* name : {"read only.txt", "open.txt"}) {
        EXPECT_THROW(writer_.replace(path(name), "after"), Failure) << name;
        EXPECT_EQ(content(name), "before") << name;
    }
    CloseHandle(open);
    SetFileAttributesW(wide(path("read only.txt")).c_str(), FILE_ATTRIBUTE_NORMAL);
    for (const std::string& none :
         {path("no folder\\a.txt"), narrow(folder_.wstring()), path("a*b.txt"), std::string()})
        EXPECT_THROW(writer_.replace(none, "x"), Failure) << none;
    EXPECT_EQ(files(), "open.txt|read only.txt");
}

} // namespace
} // namespace ostrelum::windows_platform
