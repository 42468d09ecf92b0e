#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace ostrelum::linux_platform {

/// What the files of a machine held when they were first asked for. It takes up a bounded amount of
/// memory: beyond that nothing more is kept, and long files are not, and the machine is asked
/// again.
class SeenFiles {
public:
    using Text = std::optional<std::string>;
    using Names = std::vector<std::string>;

    /// The answers by path; nothing kept for one: nullptr.
    template <class Answer>
    class Kept {
    public:
        const Answer* find(const std::string& path) const
        {
            const auto seen = answers_.find(path);
            return seen == answers_.end() ? nullptr : &seen->second;
        }

    private:
        friend SeenFiles;
        std::unordered_map<std::string, Answer> answers_;
    };

    Kept<bool> places;
    Kept<Text> contents;
    Kept<Names> folders;
    Kept<Text> links;

    template <class Answer>
    void keep(Kept<Answer>& kept, const std::string& path, const Answer& answer)
    {
        const std::size_t size = entry_size + path.size() + size_of(answer);
        if (size <= std::min(left_, longest) && kept.answers_.try_emplace(path, answer).second)
            left_ -= size;
    }

private:
    /// About what an answer takes besides its bytes.
    static constexpr std::size_t entry_size = 128;
    static constexpr std::size_t longest = std::size_t{1} << 20;

    static std::size_t size_of(bool) { return 0; }
    static std::size_t size_of(const Text& text) { return text ? text->size() : 0; }
    static std::size_t size_of(const Names& names)
    {
        std::size_t size = 0;
        for (const std::string& name : names)
            size += sizeof(std::string) + name.size();
        return size;
    }

    /// Bytes.
    std::size_t left_ = std::size_t{24} << 20;
};

} // namespace ostrelum::linux_platform
