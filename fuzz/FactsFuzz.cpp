#include "fuzz/Target.h"
#include "platform/linux/formats/CimDateTime.h"
#include "platform/linux/recording/RecordedSystemCalls.h"

#include <sstream>
#include <stdexcept>
#include <utility>
#include <vector>

using namespace ostrelum;
using namespace ostrelum::linux_platform;

namespace {

constexpr const char* space_signs = " \t\r\v\f";

/// The words of a line; only blanks and tabs part them, and they end in no other space.
std::vector<std::string> words(std::string line)
{
    line.erase(0, line.find_first_not_of(space_signs));
    std::vector<std::string> found;
    std::string word;
    for (const char c : line + " ") {
        if (c != ' ' && c != '\t') {
            word += c;
            continue;
        }
        word.erase(word.find_last_not_of(space_signs) + 1);
        if (!word.empty())
            found.push_back(std::exchange(word, ""));
    }
    return found;
}

/// 64 bits in digits alone.
std::optional<std::uint64_t> number(const std::string& word)
{
    if (word.empty() || word.find_first_not_of("0123456789") != word.npos)
        return std::nullopt;
    try {
        return std::stoull(word);
    } catch (const std::out_of_range&) {
        return std::nullopt;
    }
}

/// The space that the first line of the path tells.
std::optional<VolumeSpace> told_space(const std::string& text, const std::string& path)
{
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        const auto found = words(line);
        std::vector<std::uint64_t> numbers;
        for (const std::string& word : found) {
            if (&word != &found.front() && number(word))
                numbers.push_back(*number(word));
        }
        if (found.size() == 5 && found.front() == path && numbers.size() == 4)
            return VolumeSpace{numbers[0], numbers[1], numbers[2], numbers[3]};
    }
    return std::nullopt;
}

} // namespace

/// Any bytes as every list of answers of a recorded machine: the numbers are those that a second
/// reading of the lines finds.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const OneFileMachine machine{".facts/btime",    ".facts/env",    ".facts/hwdb",
                                        ".facts/id",       ".facts/login",  ".facts/modes",
                                        ".facts/password", ".facts/passwd", ".facts/statvfs",
                                        ".facts/uname",    ".facts/vram",   ".facts/zone"};
    const std::string text(data, data + size);
    machine.write(text);
    const auto calls = recorded_system_calls(Sysroot(machine.root()));
    for (const char* path : {"/", "/boot/efi", "card0-HDMI-A-1", "1000", "1767139200"})
        require(calls->space(path) == told_space(text, path));
    const auto mode = calls->display_mode("card0-HDMI-A-1");
    require(!mode || mode->width >= 0);
    require(!mode || calls->space("card0-HDMI-A-1"));
    calls->password_policy(1000);
    for (const std::int64_t moment : {1767139200, 1000, 0})
        calls->utc_offset(moment);
    const auto birth = calls->birth_time("/");
    require_clean(cim_datetime(birth.value_or(0), calls->utc_offset(0)));
    calls->login_time(1000);
    calls->graphics_memory("0000:01:00.0");
    calls->user_id();
    calls->processor_kind();
    calls->variable("UserName");
    calls->directory_account(1000);
    for (const char* alias : {"usb:v046DpC31C", "pci:v00008086d00003E98", ""})
        calls->hardware_name(alias, "ID_VENDOR_FROM_DATABASE");
    return 0;
}
