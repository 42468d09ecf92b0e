#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ostrelum::linux_platform {

/// Is called for each access to a machine, with its result. Paths are absolute, as they were asked
/// for.
class AccessObserver {
public:
    virtual ~AccessObserver() = default;

    virtual void on_exists(const std::string& path) = 0;

    /// Nothing in `content`: it could not be read.
    virtual void on_read(const std::string& path, const std::optional<std::string>& content) = 0;

    /// Bytes out of the midst of a file, from the byte `at` on.
    virtual void on_read_piece(const std::string& path, std::uint64_t at,
                               const std::string& bytes) = 0;

    virtual void on_list(const std::string& path, const std::vector<std::string>& names) = 0;

    virtual void on_link(const std::string& path) = 0;

    /// The answer of a system call, in the form in which a recorded machine keeps it: a line of the
    /// file `list` in /.facts, made of the key and, behind a blank, the value. The first one of a
    /// key counts.
    virtual void on_answer(const std::string& list, const std::string& key,
                           const std::string& value) = 0;
};

} // namespace ostrelum::linux_platform
