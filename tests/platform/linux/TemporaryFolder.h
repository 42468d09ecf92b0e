#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <stdlib.h>
#include <string>
#include <string_view>

namespace ostrelum::linux_platform {

/// A folder of its own for one test, gone with it.
class TemporaryFolder {
public:
    TemporaryFolder()
    {
        std::string pattern = std::filesystem::temp_directory_path() / "ostrelum-test-XXXXXX";
        if (::mkdtemp(pattern.data()) == nullptr)
            throw std::runtime_error("no temporary folder");
        path_ = pattern;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    std::string operator/(std::string_view name) const { return path_ / name; }

    /// Writes a file and the folders on its way, and returns its path.
    std::string file(std::string_view name, std::string_view content = "") const
    {
        const std::filesystem::path path = path_ / name;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << content;
        return path;
    }

private:
    std::filesystem::path path_;
};

inline std::string content_of(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

} // namespace ostrelum::linux_platform
