#pragma once

#include "platform/system/AnsiCodePage.h"
#include "platform/system/Browser.h"
#include "platform/system/Bytes.h"
#include "platform/system/Clipboard.h"
#include "platform/system/Clock.h"
#include "platform/system/FileWriter.h"
#include "platform/system/Regional.h"
#include "platform/system/Registry.h"
#include "platform/system/SaveDialog.h"
#include "platform/system/Shell.h"
#include "platform/system/SystemApi.h"
#include "sources/Windows1252.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

/// The services of the system in memory: what a test sets is what the program reads, and what the
/// program does can be read back.
namespace ostrelum::memory_platform {

/// Thrown by MemorySystemApi::End: nothing of the program runs after it, as with a process that
/// ends.
struct ProcessEnded {};

/// What the shell object keeps: it outlives the object, as a store does.
struct MemoryStore {
    std::map<std::string, RegValue> values;
    std::map<std::string, std::string> folders;
    /// Full names in the order in which they were written.
    std::vector<std::string> writes;
    bool read_only = false;
};

class MemoryShell : public Shell {
public:
    explicit MemoryShell(MemoryStore& store) : store_(store) {}
    RegValue RegRead(const std::string& name) override;
    void RegWrite(const std::string& name, const RegValue& value, const std::string& type) override;
    std::string SpecialFolders(const std::string& name) override;

private:
    MemoryStore& store_;
};

class MemoryRegistry : public Registry {
public:
    std::optional<Key> RegOpenKeyA(std::uint32_t root, const std::string& path) override;
    std::optional<std::size_t> RegQueryValueExA(Key key, const std::string& name,
                                                std::uint32_t type,
                                                std::span<std::uint8_t> buffer) override;
    void RegCloseKey(Key key) override;

    /// Binary values by key path and name.
    std::map<std::pair<std::string, std::string>, Bytes> values;
    /// Keys that are open now.
    std::map<Key, std::string> open;

private:
    Key last_ = 0;
};

class MemoryClipboard : public Clipboard {
public:
    void Clear() override;
    void SetText(const std::string& text) override;

    /// Nothing on an empty clipboard.
    std::optional<std::string> text;
    bool fails = false;
};

class MemorySaveDialog : public SaveDialog {
public:
    std::optional<ChosenFile> GetSaveFileNameA(const OpenFileName& request) override;

    std::vector<OpenFileName> requests;
    /// What the user chooses; nothing for cancel.
    std::optional<ChosenFile> answer;
};

class MemoryFileWriter : public FileWriter {
public:
    void replace(const std::string& path, const std::string& bytes) override
    {
        if (fails)
            throw Failure("the file cannot be written");
        files[path] = bytes;
    }

    /// Files by path.
    std::map<std::string, std::string> files;
    bool fails = false;
};

class MemoryAnsiCodePage : public AnsiCodePage {
public:
    std::string encoded(std::string_view utf8) override { return windows_1252(utf8); }
};

class MemoryBrowser : public Browser {
public:
    void ShellExecuteA(const std::string&, const std::string& address) override
    {
        opened.push_back(address);
    }
    std::vector<std::string> opened;
};

class MemoryClock : public Clock {
public:
    std::uint64_t timeGetTime() override { return milliseconds; }
    Date date() override { return today; }
    TimeOfDay time() override { return now; }

    std::uint64_t milliseconds = 0;
    Date today{2012, 8, 6};
    TimeOfDay now{14, 5, 9};
};

/// Day/month/year, hours:minutes:seconds, and a decimal sign that can be set.
class MemoryRegional : public Regional {
public:
    std::string short_date(const Date& date) override;
    std::string long_time(const TimeOfDay& time) override;
    std::string decimal_sign() override { return sign; }

    std::string sign = ".";
};

class MemorySystemApi : public SystemApi {
public:
    SystemInfo GetOstrelum() override { return {processors}; }
    int GetSystemMetrics(int index) override;
    std::string Environ(const std::string& name) override;
    int GetAttr(const std::string& path) override;
    bool PrevInstance() override { return second_instance; }
    /// Throws ProcessEnded.
    void End() override;

    std::uint32_t processors = 1;
    std::map<int, int> metrics;
    std::map<std::string, std::string> environment;
    std::map<std::string, int> attributes;
    bool second_instance = false;
    bool ended = false;
};

} // namespace ostrelum::memory_platform
