#pragma once

#include "platform/linux/recording/Recording.h"
#include "sources/Utf8.h"
#include "tests/platform/linux/TemporaryFolder.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

/// What a fuzz target takes: any bytes. It ends the program where something does not hold.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace ostrelum {

inline void require(bool held)
{
    if (!held)
        std::abort();
}

/// Valid UTF-8 without a control character of ISO 646 or ISO 8859-1, as texts of the machine must
/// be before anybody sees them.
inline bool is_clean_line(std::string_view text)
{
    const auto is_control = [](char c) { return (c >= 0 && c < ' ') || c == '\x7F'; };
    for (std::size_t at = 0; (at = text.find('\xC2', at)) != text.npos; ++at) {
        if (at + 1 < text.size() && static_cast<unsigned char>(text[at + 1]) < 0xA0)
            return false;
    }
    return valid_utf8(text) && std::ranges::none_of(text, is_control);
}

/// Clean lines, each but the last with this end.
inline bool are_clean_lines(std::string_view text, std::string_view line_end)
{
    while (true) {
        const auto end = std::min(text.find(line_end), text.size());
        if (!is_clean_line(text.substr(0, end)))
            return false;
        if (end == text.size())
            return true;
        text.remove_prefix(end + line_end.size());
    }
}

/// Nothing, or a clean line with something in it.
inline void require_clean(const std::optional<std::string>& text)
{
    require(!text || (!text->empty() && is_clean_line(*text)));
}

/// A machine in which some places are one and the same file.
class OneFileMachine {
public:
    OneFileMachine(std::initializer_list<std::string> places)
    {
        for (const std::string& place : places) {
            const std::filesystem::path link = folder_ / place;
            std::filesystem::create_directories(link.parent_path());
            std::filesystem::create_symlink("/all", link);
        }
    }

    std::string root() const { return folder_ / ""; }
    void write(std::string_view content) const { folder_.file("all", content); }

private:
    linux_platform::TemporaryFolder folder_;
};

inline void add_file(linux_platform::Recording& machine, const std::string& path,
                     const std::string& content)
{
    machine.places[path] = {linux_platform::PlaceKind::File, content, path};
}

/// What a file of the machine holds; nothing for one that is not there.
inline std::string content_at(const linux_platform::Recording& machine, const std::string& path)
{
    const auto place = machine.places.find(path);
    return place == machine.places.end() ? "" : place->second.content;
}

/// A machine as one text, which make-seeds writes: "==> PATH", a line end and what the file holds,
/// or "--> PATH", a line end and the text of a link; each behind a line end. What is no place in a
/// machine is left out.
inline linux_platform::Recording machine_of_text(std::string_view text)
{
    using namespace linux_platform;
    Recording machine;
    const auto next = [&](std::size_t from) {
        return std::min({text.find("\n==> /", from), text.find("\n--> /", from), text.size()});
    };
    for (std::size_t at = next(0), end = 0; at < text.size(); at = end) {
        end = next(at + 1);
        const std::string_view entry = text.substr(at + 1, end - at - 1);
        const std::string_view path = entry.substr(4, entry.find('\n') - 4);
        const std::string_view content = entry.substr(std::min(path.size() + 5, entry.size()));
        const bool usual = std::filesystem::path(path).lexically_normal() == path &&
                           path.find('\0') == path.npos && path.find("..") == path.npos &&
                           path.back() != '/' && path.size() < 200;
        const bool link = entry[0] == '-' && !content.empty() && content.size() < 200;
        if (usual && (link || entry[0] == '='))
            machine.places[std::string(path)] = {link ? PlaceKind::Link : PlaceKind::File,
                                                 std::string(content), std::string(path)};
    }
    return machine;
}

} // namespace ostrelum
