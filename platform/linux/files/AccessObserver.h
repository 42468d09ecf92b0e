#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ostrelum {

/// Hears what is asked of a machine and what it answers. Paths are absolute, as they were asked
/// for.
class Witness {
public:
    virtual ~Witness() = default;

    virtual void looked_for(const std::string& path) = 0;

    /// Nothing in `content`: it could not be read.
    virtual void read(const std::string& path, const std::optional<std::string>& content) = 0;

    /// Bytes out of the midst of a file, from the byte `at` on.
    virtual void read_piece(const std::string& path, std::uint64_t at,
                            const std::string& bytes) = 0;

    virtual void listed(const std::string& path, const std::vector<std::string>& names) = 0;

    virtual void read_link(const std::string& path) = 0;

    /// A fact that no file tells, as a recorded machine keeps it: a line of the file `list` in
    /// /.facts, made of the key and, behind a blank, the value. The first one of a key counts.
    virtual void told(const std::string& list, const std::string& key,
                      const std::string& value) = 0;
};

} // namespace ostrelum
